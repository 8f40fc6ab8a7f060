#include "filetools/scope/scope_state.h"

#include "services/state.h"

ScopeState Scope;

void ScopeReset() {
  SearchClose(Scope.step.search);
  StateReset(Scope);
}

#include "character/character_tables.h"

CharaTablesState CharaTables;

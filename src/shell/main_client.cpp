#include "shell/main_client.h"

MainClientState MainClient;

void MainClientTake(int width, int height) {
  MainClient = {width, height};
}

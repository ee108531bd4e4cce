#include "platform/platform.h"
#include "shell/Program.h"

int main(int argc, char** argv) { return platform::Run(argc, argv, fncStartProgram); }

#include "vigrel-send/run.h"

int main(int argc, char** argv) {
    return vigrel::send::Run({argv + 1, argv + argc});
}

#include "adapters/linux/standard_streams.h"
#include "vigrel-send/run.h"

int main(int argc, char** argv) {
    // The connection would get the number of a missing one, and the station what is told.
    vigrel::OpenStandardStreams();
    return vigrel::send::Run({argv + 1, argv + argc});
}

// The schematic's network reader on any bytes, and the layout and view of whatever it read:
// nothing may crash, hang or grow beyond the lines of the file.
#include <cstdint>
#include <string>

#include "plots/schematic.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    brooklet::NetworkReading reading = brooklet::ReadNetwork(bytes);
    const brooklet::Network& network = reading.network;
    // One element per line at most, the outlet besides; one split flow per line at most.
    if (static_cast<size_t>(network.count()) > size + 1 ||
        static_cast<size_t>(network.splitFlowCount()) > size)
        __builtin_trap();
    for (bool subAreas : {true, false}) {
        brooklet::Schematic schematic(network);
        schematic.SubAreas = subAreas;
        schematic.setSurfaceSize(640, 480);
        schematic.layOut();
        schematic.FitView();
        schematic.ApplyView();
        if (schematic.DrawLinks().size() > static_cast<size_t>(network.count()) ||
            schematic.DrawDiversions().size() > static_cast<size_t>(network.splitFlowCount()))
            __builtin_trap();
        schematic.elementAt({0, 0});
    }
    return 0;
}

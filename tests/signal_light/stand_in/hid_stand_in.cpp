// Lights made up by a test. The folder that the environment variable VIGREL_TEST_LIGHTS names holds
//   lights  one line a light: path, serial number (0: the light tells none), how it is:
//           "good", "locked" (can't be opened), "broken" (takes no packet), "slow" (neither, after a while),
//           "twice" (good, and listed twice), "plain" (good, but refuses packets of flashing: 65 14 to 65
//           1D), "hesitant" (refuses each packet, after a while)
//   packets what was sent, one line a packet: path, bytes in hexadecimal
#include <hidapi.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iomanip>
#include <string>
#include <utility>
#include <vector>

struct hid_device_ {
    std::string path;
};

namespace {

constexpr unsigned kSlowMicroseconds = 1200000, kHesitantMicroseconds = 400000;

struct cLight {
    std::string path;
    unsigned serial = 0;
    std::string state;
};

std::string Folder() {
    const char* folder = std::getenv("VIGREL_TEST_LIGHTS");
    return folder == nullptr ? std::string("/nowhere") : std::string(folder);
}

std::vector<cLight> Lights() {
    std::ifstream file(Folder() + "/lights");
    std::vector<cLight> lights;
    for (cLight light; file >> light.path >> light.serial >> light.state;) {
        lights.push_back(light);
        if (light.state == "twice") lights.push_back(light);
    }
    return lights;
}

// A light that isn't there has no state.
cLight Find(const std::string& path) {
    for (const cLight& light : Lights()) {
        if (light.path == path) return light;
    }
    return {};
}

bool Works(const cLight& light) {
    if (light.state == "slow") usleep(kSlowMicroseconds);
    return light.state == "good" || light.state == "twice" || light.state == "locked" ||
           light.state == "plain";
}

bool TakesPacket(const cLight& light, const unsigned char* data) {
    if (light.state == "hesitant") usleep(kHesitantMicroseconds);
    const bool ofFlashing = data[1] >= 0x14 && data[1] <= 0x1D;
    return Works(light) && !(light.state == "plain" && ofFlashing);
}

}  // namespace

extern "C" {

int hid_init() {
    return std::getenv("VIGREL_TEST_NO_HID") == nullptr ? 0 : -1;
}
int hid_exit() {
    return 0;
}

hid_device_info* hid_enumerate(unsigned short vendor, unsigned short product) {
    hid_device_info* first = nullptr;
    if (vendor != 0x0FC5 || product != 0xB080) return first;
    for (const cLight& light : Lights()) {
        auto* info = new hid_device_info{};
        info->path = strdup(light.path.c_str());
        info->next = first;
        first = info;
    }
    return first;
}

void hid_free_enumeration(hid_device_info* list) {
    while (list != nullptr) {
        std::free(list->path);
        delete std::exchange(list, list->next);
    }
}

hid_device* hid_open_path(const char* path) {
    const cLight light = Find(path);
    return light.path.empty() || light.state == "locked" ? nullptr : new hid_device_{path};
}

void hid_close(hid_device* device) {
    delete device;
}

int hid_get_feature_report(hid_device* device, unsigned char* data, std::size_t length) {
    const cLight light = Find(device->path);
    if (!Works(light) || light.serial == 0 || length < 8 || data[0] != 10) return -1;
    for (unsigned i = 0; i < 4; ++i) data[i] = static_cast<unsigned char>(light.serial >> 8 * i);
    const unsigned char firmware[] = {3, 15, 6, 20};  // version, day, month, year
    std::copy_n(firmware, 4, data + 4);
    return 8;
}

int hid_write(hid_device* device, const unsigned char* data, std::size_t length) {
    if (!TakesPacket(Find(device->path), data)) return -1;
    std::ofstream packets(Folder() + "/packets", std::ios::app);
    packets << device->path << std::hex << std::uppercase << std::setfill('0');
    for (std::size_t i = 0; i < length; ++i) packets << ' ' << std::setw(2) << unsigned{data[i]};
    packets << '\n';
    return static_cast<int>(length);
}

}  // extern "C"

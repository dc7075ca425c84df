// The standard library's random device without the device: an input makes the same identifiers each
// time, and none costs the 10 us that the processor's own instruction takes in a virtual machine.

#include <random>
#include <string>

namespace {

std::random_device::result_type seed = 0;

}  // namespace

void std::random_device::_M_init(const std::string&) {}

void std::random_device::_M_fini() {}

std::random_device::result_type std::random_device::_M_getval() { return ++seed; }

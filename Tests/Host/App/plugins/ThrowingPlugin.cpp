#include <stdexcept>

extern "C" __attribute__((visibility("default"))) void initPlugin()
{
    throw std::runtime_error("no licence today");
}

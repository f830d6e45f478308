// Only adds a container type.
extern "C" __attribute__((visibility("default"))) void initPlugin()
{
}

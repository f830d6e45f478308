// Brings a container type along, which is all it does.
extern "C" __attribute__((visibility("default"))) void initPlugin()
{
}

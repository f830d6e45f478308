extern "C" __attribute__((visibility("default"))) void initPlugin()
{
    throw 42;
}

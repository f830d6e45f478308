void nobodyHasThis();

extern "C" __attribute__((visibility("default"))) void initPlugin()
{
    nobodyHasThis();
}

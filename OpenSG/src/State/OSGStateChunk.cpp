#include <OpenSG/OSGStateChunk.h>

OSG_BEGIN_NAMESPACE

UInt32 StateChunk::newGLId()
{
    static UInt32 last = 0;
    return ++last;
}

OSG_END_NAMESPACE

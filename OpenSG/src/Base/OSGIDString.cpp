#include <OpenSG/OSGIDString.h>

#include <cstring>
#include <ostream>

OSG_BEGIN_NAMESPACE

namespace {

const Char8 *orEmpty(const Char8 *str)
{
    return str ? str : "";
}

const Char8 *copyOf(const Char8 *str)
{
    const std::size_t size = std::strlen(str) + 1;
    return static_cast<Char8 *>(std::memcpy(new Char8[size], str, size));
}

} // namespace

IDString::IDString(UInt32 size)
    : _str(size > 0 ? new Char8[size + 1]() : nullptr)
{
}

IDString::IDString(const Char8 *str, MemType memType)
{
    set(str, memType);
}

IDString::IDString(const IDString &obj, MemType memType)
{
    set(obj._str, memType);
}

IDString::~IDString()
{
    release();
}

IDString &IDString::operator=(const IDString &obj)
{
    if (this != &obj) {
        set(obj._str);
    }
    return *this;
}

UInt32 IDString::getLength() const
{
    return static_cast<UInt32>(std::strlen(orEmpty(_str)));
}

void IDString::set(const Char8 *str, MemType memType)
{
    const Char8 *newString = (str && memType == COPY) ? copyOf(str) : str;
    release();
    _str = newString;
    _memType = memType;
}

int IDString::compare(const IDString &obj) const
{
    return std::strcmp(orEmpty(_str), orEmpty(obj._str));
}

void IDString::release()
{
    if (_memType == COPY) {
        delete[] _str;
    }
}

std::ostream &operator<<(std::ostream &os, const IDString &obj)
{
    return os << orEmpty(obj.str());
}

OSG_END_NAMESPACE

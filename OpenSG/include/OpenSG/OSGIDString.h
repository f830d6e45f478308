#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <iosfwd>

OSG_BEGIN_NAMESPACE

/// A C string that may be NULL. It owns a copy (COPY) or refers to memory that the caller owns
/// (LINK). Comparisons are those of strcmp. NULL counts as empty.
class IDString
{
public:
    enum MemType { COPY, LINK };

    explicit IDString(UInt32 size = 0);
    explicit IDString(const Char8 *str, MemType memType = COPY);
    IDString(const IDString &obj, MemType memType = COPY);
    ~IDString();

    IDString &operator=(const IDString &obj);

    const Char8 *str() const { return _str; }
    bool isEmpty() const { return getLength() == 0; }
    UInt32 getLength() const;
    void set(const Char8 *str, MemType memType = COPY);

    bool operator==(const IDString &obj) const { return compare(obj) == 0; }
    bool operator!=(const IDString &obj) const { return compare(obj) != 0; }
    bool operator<(const IDString &obj) const { return compare(obj) < 0; }
    bool operator>(const IDString &obj) const { return compare(obj) > 0; }
    bool operator<=(const IDString &obj) const { return compare(obj) <= 0; }
    bool operator>=(const IDString &obj) const { return compare(obj) >= 0; }

private:
    int compare(const IDString &obj) const;
    void release();

    const Char8 *_str = nullptr;
    MemType _memType = COPY;
};

std::ostream &operator<<(std::ostream &os, const IDString &obj);

OSG_END_NAMESPACE

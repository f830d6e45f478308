#pragma once

#include <kavoMessage.h>

#include <boost/any.hpp>

#include <cstdio>
#include <cstring>
#include <string>
#include <typeinfo>

/// Copies an attribute of type T out of a message.
///
/// Compares types by name, because libraries that hide their symbols have type records of their own
/// for the same type.
/// \param value unchanged if the result is false
/// \returns false if the attribute is missing or has another type. In the second case it prints the
///     types and the call stack on standard error.
template <class T> bool getFromMessage(const kavoMessage &message, const std::string &key, T &value)
{
    const boost::any &attribute = message.get(key);
    if (attribute.empty())
        return false;

    const char *is = attribute.type().name();
    const char *required = typeid(T).name();
    if (std::strcmp(is, required) != 0) {
        std::fprintf(stderr,
            "getFromMessage : Attribute '%s' has wrong type (is:'%s' != req:'%s')!\n", key.c_str(),
            is, required);
        kavoMessage::printBT();
        return false;
    }
    value = boost::any_cast<T>(attribute);
    return true;
}

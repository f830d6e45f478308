#include <kavoMessage.h>

#include <boost/stacktrace.hpp>

#include <iostream>

kavoMessage::kavoMessage(int id)
    : m_id(id)
{
}

int kavoMessage::id() const
{
    return m_id;
}

const boost::any &kavoMessage::get(const std::string &key) const
{
    static const boost::any none;
    const auto found = m_attributes.find(key);
    return found == m_attributes.end() ? none : found->second;
}

void kavoMessage::set(const std::string &key, const boost::any &value)
{
    m_attributes[key] = value;
}

void kavoMessage::printBT()
{
    std::cerr << boost::stacktrace::stacktrace(1, 64) << std::flush;
}

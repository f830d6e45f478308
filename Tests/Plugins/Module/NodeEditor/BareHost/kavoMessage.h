#pragma once

#include <boost/any.hpp>

#include <string>

class kavoMessage
{
public:
    int id() const;
    const boost::any &get(const std::string &key) const;
    static void printBT();
};

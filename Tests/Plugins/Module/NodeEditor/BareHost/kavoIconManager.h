#pragma once

#include <QIcon>

#include <string>

class kavoIconManager
{
public:
    static QIcon getIcon(const std::string &key, const std::string &sub);
};

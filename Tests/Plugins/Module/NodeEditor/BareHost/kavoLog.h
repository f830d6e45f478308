#pragma once

class kavoLog
{
public:
    static void error(const char *format, ...);
};

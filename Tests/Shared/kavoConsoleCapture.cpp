#include "kavoConsoleCapture.h"

#include <QFile>

#include <cstdio>
#include <iostream>
#include <unistd.h>

kavoConsoleCapture::kavoConsoleCapture(Stream stream)
    : m_stream(stream)
{
    flush();
    m_original = ::dup(stream);
    if (m_file.open())
        ::dup2(m_file.handle(), stream);
}

kavoConsoleCapture::~kavoConsoleCapture()
{
    flush();
    ::dup2(m_original, m_stream);
    ::close(m_original);
}

QByteArray kavoConsoleCapture::text()
{
    flush();
    QFile written(m_file.fileName());
    return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
}

void kavoConsoleCapture::flush()
{
    std::cout.flush();
    std::cerr.flush();
    std::fflush(nullptr);
}

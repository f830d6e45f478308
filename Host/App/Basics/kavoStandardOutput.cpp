#include "Basics/kavoStandardOutput.h"

#include "Basics/kavoTaskError.h"

#include <QByteArray>
#include <QCoreApplication>

#include <cerrno>
#include <cstdio>

void kavoStandardOutput::write(const QByteArray &text)
{
    const std::size_t size = std::size_t(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0) {
        throw kavoTaskError(
            QCoreApplication::translate("kavoStandardOutput", "Cannot write the output: %1")
                .arg(qt_error_string(errno)));
    }
}

#pragma once

#include <QCoreApplication>

class QByteArray;

/// Where jobs print to.
class kavoStandardOutput
{
    Q_DECLARE_TR_FUNCTIONS(kavoStandardOutput)

public:
    /// Returns when the text is where it belongs.
    /// \throws kavoTaskError if not all of it can be written, to a full disk for one
    static void write(const QByteArray &text);
};

#pragma once

#include <QCoreApplication>

/// Prints a field of the scene for scripts and tests.
class kavoFieldPrinter
{
    Q_DECLARE_TR_FUNCTIONS(kavoFieldPrinter)

public:
    /// Writes the field's text and a line feed to standard output.
    /// \param address container id, a point, the field's name: "163.minFilter"
    /// \throws kavoTaskError if there is no such field
    static void print(const QString &address);
};

#pragma once

#include <QString>

/// Prints a field of the scene for scripts and tests.
class kavoFieldPrinter
{
public:
    /// Writes the field's text and a line feed to standard output.
    /// \param address container id, a point, the field's name: "163.minFilter"
    /// \returns what is wrong with the address, empty if nothing is
    static QString print(const QString &address);
};

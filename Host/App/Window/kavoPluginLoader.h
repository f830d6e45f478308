#pragma once

#include <QSet>
#include <QString>

/// Loads plug-ins: every shared library of a folder, by calling its entry `initPlugin`.
///
/// A library is skipped with a line in the log if it cannot be loaded, has undefined symbols, has
/// no such entry, or if its entry throws. An exception in the constructor of a static object of a
/// library cannot be caught and ends the process. Libraries are never unloaded.
class kavoPluginLoader
{
public:
    /// The folder `plugins` beside the executable's own.
    static QString defaultFolder();

    /// Loads the libraries of the folder in the order of their names. A library is loaded only
    /// once. \returns the number of plug-ins that started
    int load(const QString &folder);

private:
    bool loadLibrary(const QString &file);

    QSet<QString> m_loaded;
};

#pragma once

#include <QSet>
#include <QString>

/// Loads plug-ins: every shared library of a folder, by calling its entry `initPlugin`.
///
/// A library that cannot be loaded, has no such entry or whose entry throws is reported in the log
/// and skipped. So is one that uses symbols that nobody has. An exception out of the constructor of
/// a library's static object cannot be caught and ends the process. Libraries are never unloaded.
class kavoPluginLoader
{
public:
    /// The folder `plugins` beside the executable's own.
    static QString defaultFolder();

    /// Loads the folder's libraries in the order of their names, each library once.
    /// \returns the number of plug-ins that started
    int load(const QString &folder);

private:
    bool loadLibrary(const QString &file);

    QSet<QString> m_loaded;
};

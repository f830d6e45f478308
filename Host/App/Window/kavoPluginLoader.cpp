#include "Window/kavoPluginLoader.h"

#include "Basics/kavoTry.h"

#include <kavoLog.h>

#include <OpenSG/OSGFieldContainerFactory.h>

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

namespace {

using Entry = void (*)();

bool skip(const QString &file, const QString &reason)
{
    kavoLog::error("Plug-in '%s' skipped: %s", qUtf8Printable(file), qUtf8Printable(reason));
    return false;
}

} // namespace

QString kavoPluginLoader::defaultFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../plugins"));
}

int kavoPluginLoader::load(const QString &folder)
{
    const QDir dir(folder);
    if (!dir.exists()) {
        kavoLog::error("There is no plug-in folder '%s'", qUtf8Printable(folder));
        return 0;
    }
    int started = 0;
    for (const QFileInfo &file : dir.entryInfoList(QDir::Files, QDir::Name)) {
        if (QLibrary::isLibrary(file.fileName()))
            started += loadLibrary(file.canonicalFilePath());
    }
    // Container types of libraries that were loaded after osgInit are not initialized by
    // themselves.
    osg::FieldContainerFactory::the()->initializePendingTypes();
    return started;
}

bool kavoPluginLoader::loadLibrary(const QString &file)
{
    if (m_loaded.contains(file))
        return false;
    m_loaded.insert(file);
    QLibrary library(file);
    library.setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    if (!library.load())
        return skip(file, library.errorString());
    const auto entry = reinterpret_cast<Entry>(library.resolve("initPlugin"));
    if (!entry)
        return skip(file, QStringLiteral("it has no entry initPlugin"));
    if (const auto reason = kavoTry(entry))
        return skip(file, QStringLiteral("initPlugin failed: %1").arg(*reason));
    kavoLog::info("Plug-in '%s' loaded", qUtf8Printable(file));
    return true;
}

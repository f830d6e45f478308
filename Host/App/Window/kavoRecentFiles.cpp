#include "Window/kavoRecentFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace {

constexpr int maxFiles = 10;
const QString settingsKey = QStringLiteral("recentFiles");

} // namespace

kavoRecentFiles::kavoRecentFiles(QWidget *parent)
    : QMenu(tr("Open &Recent"), parent)
{
    rebuild();
}

void kavoRecentFiles::add(const QString &file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    QStringList files = this->files();
    files.removeAll(path);
    files.prepend(path);
    setFiles(files.mid(0, maxFiles));
}

QStringList kavoRecentFiles::files() const
{
    return QSettings().value(settingsKey).toStringList();
}

void kavoRecentFiles::setFiles(const QStringList &files)
{
    QSettings().setValue(settingsKey, files);
    rebuild();
}

void kavoRecentFiles::rebuild()
{
    clear();
    for (const QString &file : files())
        addAction(QDir::toNativeSeparators(file), this, [this, file] { emit chosen(file); });
    setEnabled(!isEmpty());
    addSeparator();
    addAction(tr("&Clear List"), this, [this] { setFiles({}); });
}

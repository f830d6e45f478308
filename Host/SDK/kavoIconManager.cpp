#include <kavoIconManager.h>

#include "kavoIconEngine.h"

#include <QFile>

QIcon kavoIconManager::getIcon(const std::string &key, const std::string &sub)
{
    const QString name = QString::fromStdString(sub.empty() ? key : key + '-' + sub);
    const QString file = QStringLiteral(":/kavo/icons/%1.svg").arg(name);
    if (QFile::exists(file))
        return QIcon(new kavoIconEngine(file));
    return QIcon::fromTheme(name);
}

#include "Files/kavoOsgWriter.h"

#include "Basics/kavoOutputFile.h"
#include "Basics/kavoTaskError.h"
#include "Files/kavoCameraAttachment.h"
#include "Files/kavoLibraryLog.h"

#include <OpenSG/OSGSceneFileHandler.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fstream>

namespace {

void write(const osg::NodePtr &root, const kavoOutputFile &file)
{
    const kavoLibraryLog log;
    const kavoCameraAttachment cameras(root);
    std::ofstream stream(QFile::encodeName(file.path()).toStdString(), std::ios::binary);
    errno = 0;
    const bool written = osg::SceneFileHandler::the().write(root, stream, "osg");
    const bool isWhole = stream.good();
    stream.close();
    if (!isWhole || !stream.good())
        file.fail(errno != 0 ? errno : EIO);
    if (!written)
        throw kavoTaskError(QCoreApplication::translate(
            "kavoOsgWriter", "The scene cannot be saved; the log says why"));
}

} // namespace

QString kavoOsgWriter::suffix()
{
    return QStringLiteral("osg");
}

bool kavoOsgWriter::canSave(const QString &file)
{
    return QFileInfo(file).suffix().compare(suffix(), Qt::CaseInsensitive) == 0;
}

void kavoOsgWriter::useFaithfulFormat()
{
    osg::SceneFileHandler::the().setOptions("osg", "whitespace=keep lists=replace");
}

void kavoOsgWriter::save(const osg::NodePtr &root, const QString &file)
{
    if (root == osg::NullFC)
        throw kavoTaskError(
            QCoreApplication::translate("kavoOsgWriter", "There is no scene to save"));
    if (!canSave(file))
        throw kavoTaskError(QCoreApplication::translate(
            "kavoOsgWriter", "Cannot save '%1': scenes are saved in .osg files")
                                .arg(file));
    useFaithfulFormat();
    kavoOutputFile output(file);
    write(root, output);
    output.commit();
}

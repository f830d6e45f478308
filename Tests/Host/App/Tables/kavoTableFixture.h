#pragma once

#include "Tables/kavoTableExport.h"
#include "Tables/kavoTableImport.h"
#include <kavoNodePtr.h>
#include <kavoTestPairs.h>

#include <QFile>
#include <QTemporaryDir>

/// A scene, and a temporary folder for tables of its value pairs.
struct kavoTableFixture
{
    kavoTableFixture()
        : root(kavoTestPairs::addNode(osg::NullFC, "Hull"))
    {
    }

    QString path(const QString &name = QStringLiteral("table.csv")) const
    {
        return folder.filePath(name);
    }

    QByteArray exported() const
    {
        kavoTableExport::run(root, path(), options);
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
    }

    kavoTableImport::Report import(const QByteArray &text) const
    {
        QFile file(path());
        file.open(QIODevice::WriteOnly);
        file.write(text);
        file.close();
        return kavoTableImport::run(root, path(), options).value();
    }

    /// Returns the cells of a line after the fixed columns. \param line counted from 0
    QByteArray cells(int line) const
    {
        const QByteArray text = exported().split('\n').value(line).trimmed();
        int begin = 0;
        for (int comma = 0; comma < 4; ++comma)
            begin = text.indexOf(options.delimiter, begin) + 1;
        return text.mid(begin);
    }

    QTemporaryDir folder;
    kavoNodePtr root;
    kavoTableOptions options;
};

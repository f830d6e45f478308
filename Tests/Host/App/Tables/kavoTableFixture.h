#pragma once

#include "Tables/kavoTableExport.h"
#include "Tables/kavoTableImport.h"
#include <kavoNodePtr.h>
#include <kavoTestPairs.h>

#include <QFile>
#include <QTemporaryDir>

/// A scene with value pairs, and tables of it in a folder of their own.
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

    /// The part of the line with that number (from 0) that stands behind the fixed columns.
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

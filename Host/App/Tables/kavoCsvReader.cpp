#include "Tables/kavoCsvReader.h"

#include "Basics/kavoTaskError.h"
#include "Tables/kavoCsvParser.h"
#include "Tables/kavoCsvWriter.h"

#include <QString>

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace {

using Cells = std::vector<std::string>;

[[noreturn]] void fail(int line, const QString &reason)
{
    throw kavoTaskError(kavoCsvReader::tr("line %1: %2").arg(line).arg(reason));
}

// The first column has a known name: behind it, or behind the quote that closes it, stands the
// delimiter.
char findDelimiter(const std::string &text)
{
    for (const std::string_view start : { "id", "\"id\"" }) {
        if (text.size() > start.size() && text.compare(0, start.size(), start) == 0)
            return text[start.size()];
    }
    return ',';
}

std::vector<kavoTable::Column> columnsOf(const Cells &header, const kavoCellText &cellText)
{
    const Cells &fixed = kavoCsvWriter::fixedColumns();
    if (header.size() < fixed.size() || !std::equal(fixed.begin(), fixed.end(), header.begin()))
        fail(1, kavoCsvReader::tr("the columns id, path, name and type are not the first"));
    std::vector<kavoTable::Column> columns;
    std::unordered_map<std::string, int> count;
    for (std::size_t i = fixed.size(); i < header.size(); ++i) {
        const std::string key = cellText.decodeKey(header[i]);
        columns.emplace_back(key, count[key]++);
    }
    return columns;
}

osg::UInt32 parseId(const std::string &cell, int line)
{
    bool isNumber = false;
    const osg::UInt32 id = QString::fromStdString(cell).toUInt(&isNumber);
    if (!isNumber)
        fail(line, kavoCsvReader::tr("'%1' is not an id").arg(QString::fromStdString(cell)));
    return id;
}

// Empty cells are not kept: a table may be large, and they are most of it.
kavoTable::Row rowOf(const Cells &cells, int line, const kavoTable &table)
{
    const std::size_t fixed = cells.size() - table.columns.size();
    kavoTable::Row row { line, parseId(cells[0], line), table.cellText.decode(cells[1]), {} };
    for (std::size_t i = fixed; i < cells.size(); ++i) {
        if (!cells[i].empty())
            row.cells.push_back({ i - fixed, cells[i] });
    }
    return row;
}

}

kavoTable kavoCsvReader::read(const std::string &text, const kavoTableOptions &options)
{
    kavoTable table;
    table.missingCellsAreEmpty = true;
    table.cellText = kavoCellText(options.decimalSeparator, options.guardsFormulas);
    kavoCsvParser parser(text, findDelimiter(text));
    Cells cells;
    if (!parser.readRow(cells))
        fail(1, tr("the file is empty"));
    table.columns = columnsOf(cells, table.cellText);
    const std::size_t width = cells.size();
    while (parser.readRow(cells)) {
        if (cells.size() != width)
            fail(parser.line(), tr("%1 cells instead of %2").arg(cells.size()).arg(width));
        table.rows.push_back(rowOf(cells, parser.line(), table));
    }
    return table;
}

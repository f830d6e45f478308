#include "Tables/kavoCsvParser.h"

#include "Basics/kavoTaskError.h"

#include <algorithm>

kavoCsvParser::kavoCsvParser(const std::string &text, char delimiter)
    : m_text(text)
    , m_delimiter(delimiter)
{
}

bool kavoCsvParser::readRow(std::vector<std::string> &cells)
{
    while (skipLineEnd()) { }
    if (atEnd())
        return false;
    m_rowLine = m_line;
    cells.clear();
    cells.push_back(readCell());
    while (!atEnd() && m_text[m_place] == m_delimiter) {
        ++m_place;
        cells.push_back(readCell());
    }
    skipLineEnd();
    return true;
}

bool kavoCsvParser::atEndOfCell() const
{
    return atEnd() || m_text[m_place] == m_delimiter || m_text[m_place] == '\r'
        || m_text[m_place] == '\n';
}

bool kavoCsvParser::skipLineEnd()
{
    const std::size_t size = m_text.compare(m_place, 2, "\r\n") == 0 ? 2 : 1;
    if (atEnd() || (m_text[m_place] != '\r' && m_text[m_place] != '\n'))
        return false;
    m_place += size;
    ++m_line;
    return true;
}

std::string kavoCsvParser::readCell()
{
    if (!atEnd() && m_text[m_place] == '"')
        return readQuoted();
    const std::size_t begin = m_place;
    for (; !atEndOfCell(); ++m_place) {
        if (m_text[m_place] == '"')
            fail(tr("a quote within a cell that does not begin with one"));
    }
    return m_text.substr(begin, m_place - begin);
}

std::string kavoCsvParser::readQuoted()
{
    std::string cell;
    for (bool isClosed = false; !isClosed;) {
        const std::size_t quote = m_text.find('"', m_place + 1);
        if (quote == std::string::npos)
            fail(tr("a quote that is never closed"));
        cell.append(m_text, m_place + 1, quote - m_place - 1);
        isClosed = quote + 1 == m_text.size() || m_text[quote + 1] != '"';
        cell.append(isClosed ? 0 : 1, '"');
        m_place = quote + 1;
    }
    if (!atEndOfCell())
        fail(tr("text behind a closing quote"));
    m_line += int(std::count(cell.begin(), cell.end(), '\n'));
    return cell;
}

void kavoCsvParser::fail(const QString &reason) const
{
    throw kavoTaskError(tr("line %1: %2").arg(m_line).arg(reason));
}

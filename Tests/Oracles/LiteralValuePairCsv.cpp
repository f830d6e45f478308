#include "LiteralValuePairCsv.h"

#include <OSGValuePairBase.h>
#include <kavoNodeUtils.h>

#include <cstring>
#include <fstream>
#include <iostream>

using namespace osg;

LiteralValuePairCsv::LiteralValuePairCsv(bool takesAllNodes)
    : SingleTypeGraphOp<NodeCore>("LiteralValuePairCsv")
    , m_takesAllNodes(takesAllNodes)
{
}

GraphOp *LiteralValuePairCsv::create()
{
    return new LiteralValuePairCsv;
}

void LiteralValuePairCsv::setParams(const std::string)
{
}

std::string LiteralValuePairCsv::usage()
{
    return std::string();
}

bool LiteralValuePairCsv::travNodeEnter(const NodePtr &node)
{
    return gather(node);
}

bool LiteralValuePairCsv::travNodeEnter(NodePtr node)
{
    return gather(node);
}

bool LiteralValuePairCsv::travNodeLeave(const NodePtr &)
{
    return true;
}

bool LiteralValuePairCsv::travNodeLeave(NodePtr)
{
    return true;
}

Action::ResultE LiteralValuePairCsv::traverseEnter(const NodePtr &node)
{
    gather(node);
    return Action::Continue;
}

Action::ResultE LiteralValuePairCsv::traverseEnter(NodePtr &node)
{
    gather(node);
    return Action::Continue;
}

Action::ResultE LiteralValuePairCsv::traverseLeave(const NodePtr &, Action::ResultE)
{
    return Action::Continue;
}

Action::ResultE LiteralValuePairCsv::traverseLeave(NodePtr &, Action::ResultE)
{
    return Action::Continue;
}

bool LiteralValuePairCsv::gather(const NodePtr &node)
{
    if (node == NullFC || node->getCore() == NullFC)
        return false;
    if (!m_takesAllNodes && node->getTravMask() != 0xFFFFFFFF)
        return false;
    const char *name = kavoNodeUtils::getName(node);
    m_nodeNames.push_back(name ? name : "");
    gatherPairs(node);
    ++m_rowCount;
    for (const auto &[key, column] : m_columns) {
        if (Int32(column.size()) > m_rowTotal)
            m_rowTotal = Int32(column.size());
    }
    for (auto &[key, column] : m_columns)
        column.resize(m_rowTotal);
    return false;
}

void LiteralValuePairCsv::gatherPairs(const NodePtr &node)
{
    const FieldContainerType &type = ValuePairBase::getClassType();
    const AttachmentPtr attachment = node->findAttachment(type.getGroupId());
    if (attachment == NullFC || !attachment->getType().isDerivedFrom(type))
        return;
    const auto *pairs = static_cast<ValuePairBase *>(attachment.getCPtr());
    const std::vector<std::string> &keys = pairs->getKeys().getValues();
    const std::vector<std::string> &values = pairs->getValues().getValues();
    if (keys.empty())
        return;
    for (const std::string &key : keys) {
        m_keys.insert(key);
        m_columns.insert({ key, m_emptyColumn });
    }
    for (auto &[key, column] : m_columns) {
        column.resize(m_rowCount);
        for (std::size_t j = 0; j < keys.size(); ++j) {
            if (std::strcmp(keys[j].c_str(), key.c_str()) == 0)
                column.push_back(j < values.size() ? values[j] : std::string());
        }
    }
}

void LiteralValuePairCsv::replaceNewlines(std::string &cell)
{
    for (std::size_t place; (place = cell.find('\n')) != std::string::npos;) {
        cell.erase(place, 2);
        cell.insert(place, " ");
    }
}

bool LiteralValuePairCsv::save(const std::string &fileName)
{
    std::ofstream file(fileName);
    if (!file.good())
        std::cout << "File could not be opened" << std::endl;
    file << "nodes\\keys,";
    for (const auto &[key, column] : m_columns)
        file << key << ",";
    file << "\n";
    for (Int32 row = 0; row < m_rowTotal; ++row) {
        if (row < Int32(m_nodeNames.size()))
            file << m_nodeNames[row];
        file << ",";
        for (const auto &[key, column] : m_columns) {
            std::string cell = column[row];
            replaceNewlines(cell);
            file << cell << ",";
        }
        file << "\n";
    }
    m_rowCount = 0;
    m_rowTotal = 0;
    file.close();
    return true;
}

#include "Tables/kavoRowPlacer.h"

#include "Tables/kavoPathWalk.h"

kavoRowPlacer::kavoRowPlacer(const std::vector<kavoImportedTable::Row> &rows)
    : m_rows(rows)
    , m_names(rows.size())
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        m_rowsById.emplace(rows[i].id, i);
        m_rowsByPath.emplace(rows[i].path, i);
    }
}

bool kavoRowPlacer::search(const osg::NodePtr &root, kavoTaskProgress &progress)
{
    kavoPathWalk walk(root);
    while (walk.next()) {
        if (!progress.advance())
            return false;
        findRowsOf(walk.node(), walk.path());
    }
    return true;
}

void kavoRowPlacer::findRowsOf(const osg::NodePtr &node, const std::string &path)
{
    const auto ofPath = m_rowsByPath.equal_range(path);
    for (auto row = ofPath.first; row != ofPath.second; ++row) {
        m_names[row->second].byPath = node;
        claim(node, row->second);
    }
    const auto ofId = m_rowsById.equal_range(node.getFieldContainerId());
    for (auto row = ofId.first; row != ofId.second; ++row) {
        if (kavoPathWalk::withoutNumbers(m_rows[row->second].path)
            != kavoPathWalk::withoutNumbers(path))
            continue;
        m_names[row->second].byId = node;
        claim(node, row->second);
    }
}

void kavoRowPlacer::claim(const osg::NodePtr &node, std::size_t row)
{
    Claim &claim = m_claims.emplace(node.getFieldContainerId(), Claim { row, row }).first->second;
    if (row != claim.first)
        claim.last = row;
}

kavoRowPlacer::Place kavoRowPlacer::placeOf(std::size_t row) const
{
    const auto &[byId, byPath] = m_names[row];
    const osg::NodePtr node = byId == osg::NullFC ? byPath : byId;
    if (node == osg::NullFC)
        return { osg::NullFC, tr("the scene has no such node") };
    if (byPath != osg::NullFC && byPath != node)
        return { osg::NullFC, tr("id and path name different nodes") };
    const Claim &claim = m_claims.at(node.getFieldContainerId());
    const std::size_t other = claim.first == row ? claim.last : claim.first;
    if (other != row)
        return { osg::NullFC, tr("line %1 names the same node").arg(m_rows[other].line) };
    return { node, QString() };
}

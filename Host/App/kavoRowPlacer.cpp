#include "kavoRowPlacer.h"

#include "kavoPathWalk.h"

kavoRowPlacer::kavoRowPlacer(const std::vector<kavoTable::Row> &rows, const osg::NodePtr &root)
    : m_rows(rows)
    , m_nodes(rows.size())
    , m_nodesById(rows.size())
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        m_rowsById.emplace(rows[i].id, i);
        m_rowsByPath.emplace(rows[i].path, i);
    }
    walk(root);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (m_nodesById[i] != osg::NullFC)
            m_nodes[i] = m_nodesById[i];
    }
}

void kavoRowPlacer::walk(const osg::NodePtr &root)
{
    kavoPathWalk walk(root);
    while (walk.next()) {
        const std::string path = kavoCellText::validUtf8(walk.path());
        const auto ofPath = m_rowsByPath.equal_range(path);
        for (auto row = ofPath.first; row != ofPath.second; ++row)
            m_nodes[row->second] = walk.node();
        const auto ofId = m_rowsById.equal_range(walk.node().getFieldContainerId());
        for (auto row = ofId.first; row != ofId.second; ++row) {
            if (kavoPathWalk::withoutNumbers(m_rows[row->second].path)
                == kavoPathWalk::withoutNumbers(path))
                m_nodesById[row->second] = walk.node();
        }
    }
}

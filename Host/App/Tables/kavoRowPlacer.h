#pragma once

#include "Tables/kavoImportedTable.h"
#include "Tables/kavoTaskProgress.h"

#include <OpenSG/OSGNode.h>

#include <QCoreApplication>
#include <QString>

#include <string_view>
#include <unordered_map>
#include <vector>

/// Finds the nodes that the rows of a table speak about.
///
/// Neither ids nor paths are to be trusted alone: ids hold only as long as a scene is open, and in
/// another session the same id may be that of a sibling; paths change when siblings of the same
/// name come, go or change places. So a row names a node by its exact path, and also by its id if
/// that node's path is the row's but for the numbers of siblings. It has a place only if these are
/// not two different nodes, and if no other row names the node in either way.
class kavoRowPlacer
{
    Q_DECLARE_TR_FUNCTIONS(kavoRowPlacer)

public:
    struct Place
    {
        osg::NodePtr node; ///< null if there is none
        QString problem; ///< why there is none, in words for the user
    };

    /// \param rows must live as long as this object
    explicit kavoRowPlacer(const std::vector<kavoImportedTable::Row> &rows);

    /// Looks at the nodes of a scene. To be called once.
    /// \returns false if the monitor has canceled it
    bool search(const osg::NodePtr &root, kavoTaskProgress &progress);

    /// Where that row belongs.
    Place placeOf(std::size_t row) const;

private:
    struct Names
    {
        osg::NodePtr byId, byPath;
    };
    /// The rows that name a node, of which two are enough.
    struct Claim
    {
        std::size_t first, last;
    };

    void findRowsOf(const osg::NodePtr &node, const std::string &path);
    void claim(const osg::NodePtr &node, std::size_t row);

    const std::vector<kavoImportedTable::Row> &m_rows;
    std::unordered_multimap<osg::UInt32, std::size_t> m_rowsById;
    std::unordered_multimap<std::string_view, std::size_t> m_rowsByPath;
    std::vector<Names> m_names; ///< by row
    std::unordered_map<osg::UInt32, Claim> m_claims; ///< by the id of the node
};

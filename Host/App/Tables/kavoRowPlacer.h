#pragma once

#include "Tables/kavoImportedTable.h"
#include "Tables/kavoTaskProgress.h"

#include <OpenSG/OSGNode.h>

#include <QCoreApplication>
#include <QString>

#include <string_view>
#include <unordered_map>
#include <vector>

/// Finds the node of each row of a table.
///
/// Neither ids nor paths are reliable alone. An id is valid only while the scene is open; in
/// another session a sibling may have it. A path changes when siblings of the same name are added,
/// deleted or moved. Therefore a row names the node that has exactly its path, and it names the
/// node that has its id if the two paths differ only in the numbers of siblings. The row has a
/// place if it names exactly one node and no other row names that node.
class kavoRowPlacer
{
    Q_DECLARE_TR_FUNCTIONS(kavoRowPlacer)

public:
    struct Place
    {
        osg::NodePtr node; ///< null if there is none
        QString problem; ///< if there is none, the reason in words for the user
    };

    /// \param rows must outlive this object
    explicit kavoRowPlacer(const std::vector<kavoImportedTable::Row> &rows);

    /// Searches the nodes of a scene. Must be called once.
    /// \returns false if the monitor canceled the search
    bool search(const osg::NodePtr &root, kavoTaskProgress &progress);

    Place placeOf(std::size_t row) const;

private:
    struct Names
    {
        osg::NodePtr byId, byPath;
    };
    /// The first and the last row that name a node; the same row if there is only one.
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

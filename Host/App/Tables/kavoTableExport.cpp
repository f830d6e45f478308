#include "Tables/kavoTableExport.h"

#include "Basics/kavoOutputFile.h"
#include "Tables/kavoPathWalk.h"
#include "Tables/kavoValuePairs.h"

#include <kavoNodePtr.h>
#include <kavoNodeUtils.h>

#include <OpenSG/OSGNodeCore.h>

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fstream>

namespace {

const char *coreTypeOf(const osg::NodePtr &node)
{
    const osg::NodeCorePtr core = node->getCore();
    return core == osg::NullFC ? "" : core->getType().getCName();
}

}

kavoTableExport::kavoTableExport(const osg::NodePtr &root, const kavoTableOptions &options)
    : m_root(root)
    , m_options(options)
    , m_columns(options.keys)
{
}

bool kavoTableExport::run(const QString &fileName, const kavoMonitor &monitor)
{
    const kavoNodePtr kept(m_root); // the monitor may let another scene take its place
    kavoOutputFile file(fileName);
    std::ofstream out(QFile::encodeName(file.path()), std::ios::binary);
    if (!out)
        file.fail(errno);
    kavoTaskProgress progress(m_root, 2, monitor);
    if (!collectColumns(progress))
        return false;
    const auto writer = kavoTableWriter::create(out, m_options);
    writer->writeHeader(m_columns.keys());
    if (!writeRows(out, *writer, progress))
        return false;
    out.close();
    if (!out)
        file.fail(errno);
    file.commit();
    return true;
}

bool kavoTableExport::collectColumns(kavoTaskProgress &progress)
{
    kavoPathWalk walk(m_root);
    while (walk.next()) {
        if (!progress.advance())
            return false;
        if (const osg::ValuePairBase *pairs = pairsOfRow(walk))
            m_columns.add(*pairs);
    }
    m_columns.layOut();
    return true;
}

// Ends at the first error, before the monitor can have one of its own.
bool kavoTableExport::writeRows(
    const std::ostream &out, kavoTableWriter &writer, kavoTaskProgress &progress) const
{
    kavoTableWriter::Cells cells;
    kavoPathWalk walk(m_root);
    while (out && walk.next()) {
        if (!progress.advance())
            return false;
        const osg::ValuePairBase *pairs = pairsOfRow(walk);
        if (!pairs)
            continue;
        m_columns.fill(*pairs, cells);
        writer.writeRow({ walk.node().getFieldContainerId(), walk.path(), walk.name(),
                            coreTypeOf(walk.node()) },
            cells);
    }
    return true;
}

// Null for nodes that have no row.
const osg::ValuePairBase *kavoTableExport::pairsOfRow(const kavoPathWalk &walk) const
{
    const osg::ValuePairBase *pairs = kavoValuePairs::of(walk.node());
    if (!pairs || (!m_options.takesAllNodes && !kavoNodeUtils::isFullyVisible(walk.node())))
        return nullptr;
    const std::vector<std::string> &keys = pairs->getKeys().getValues();
    const auto isWanted
        = [this](const std::string &key) { return m_options.nodeKeys.matches(key); };
    if (std::none_of(keys.begin(), keys.end(), isWanted))
        return nullptr;
    const bool matches = m_options.nodeNames.matches(walk.name())
        && m_options.coreTypes.matches(coreTypeOf(walk.node()));
    return matches ? pairs : nullptr;
}

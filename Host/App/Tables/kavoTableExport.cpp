#include "Tables/kavoTableExport.h"

#include "Basics/kavoOutputFile.h"
#include "Tables/kavoKeyColumns.h"
#include "Tables/kavoPathWalk.h"
#include "Tables/kavoTableFile.h"
#include "Tables/kavoValuePairs.h"

#include <kavoNodePtr.h>
#include <kavoNodeQueries.h>

#include <OpenSG/OSGNodeCore.h>

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fstream>

namespace {

// Walks the scene twice, for the columns and for the rows: a table in memory could be larger than
// the scene.
class Export
{
public:
    Export(const osg::NodePtr &root, const kavoTableOptions &options)
        : m_root(root)
        , m_options(options)
        , m_columns(options.keys)
    {
    }

    bool run(const QString &fileName, const kavoMonitor &monitor);

private:
    bool collectColumns(kavoTaskProgress &progress);
    bool writeRows(
        const std::ostream &out, kavoRowWriter &writer, kavoTaskProgress &progress) const;
    const osg::ValuePairBase *pairsOfRow(const kavoPathWalk &walk) const;

    const kavoNodePtr m_root; // the monitor may close the scene
    const kavoTableOptions &m_options;
    kavoKeyColumns m_columns;
};

const char *coreTypeOf(const osg::NodePtr &node)
{
    const osg::NodeCorePtr core = node->getCore();
    return core == osg::NullFC ? "" : core->getType().getCName();
}

bool Export::run(const QString &fileName, const kavoMonitor &monitor)
{
    kavoOutputFile file(fileName);
    std::ofstream out(QFile::encodeName(file.path()), std::ios::binary);
    if (!out)
        file.fail(errno);
    kavoTaskProgress progress(m_root, 2, monitor);
    if (!collectColumns(progress))
        return false;
    const auto writer = kavoTableFile::createWriter(out, m_options);
    writer->writeHeader(m_columns.keys());
    if (!writeRows(out, *writer, progress))
        return false;
    out.close();
    if (!out)
        file.fail(errno);
    file.commit();
    return true;
}

bool Export::collectColumns(kavoTaskProgress &progress)
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

// Stops at the first write error, so that errno is still that of the error.
bool Export::writeRows(
    const std::ostream &out, kavoRowWriter &writer, kavoTaskProgress &progress) const
{
    kavoPathWalk walk(m_root);
    while (out && walk.next()) {
        if (!progress.advance())
            return false;
        const osg::ValuePairBase *pairs = pairsOfRow(walk);
        if (!pairs)
            continue;
        writer.writeRow({ walk.node().getFieldContainerId(), walk.path(), walk.name(),
                            coreTypeOf(walk.node()) },
            m_columns.valuesOf(*pairs));
    }
    return true;
}

// Returns null for nodes that get no row.
const osg::ValuePairBase *Export::pairsOfRow(const kavoPathWalk &walk) const
{
    const osg::ValuePairBase *pairs = kavoValuePairs::of(walk.node());
    if (!pairs || (!m_options.takesAllNodes && !kavoNodeQueries::isFullyVisible(walk.node())))
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

} // namespace

bool kavoTableExport::run(const osg::NodePtr &root, const QString &fileName,
    const kavoTableOptions &options, const kavoMonitor &monitor)
{
    return Export(root, options).run(fileName, monitor);
}

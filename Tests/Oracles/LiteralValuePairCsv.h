#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGSingleTypeGraphOp.h>

#include <map>
#include <set>
#include <string>
#include <vector>

/// What osg::ValuePairCSVCreator must write, done the plain way: every cell of the table is a
/// string, and every column is resized at every node. The measure of the real one, for tests and
/// benchmarks.
class LiteralValuePairCsv : public osg::SingleTypeGraphOp<osg::NodeCore>
{
public:
    explicit LiteralValuePairCsv(bool takesAllNodes = false);

    osg::GraphOp *create() override;
    void setParams(const std::string params) override;
    std::string usage() override;

    bool travNodeEnter(const osg::NodePtr &node);
    bool travNodeEnter(osg::NodePtr node);
    bool travNodeLeave(const osg::NodePtr &node);
    bool travNodeLeave(osg::NodePtr node);

    bool save(const std::string &fileName);

protected:
    osg::Action::ResultE traverseEnter(const osg::NodePtr &node);
    osg::Action::ResultE traverseEnter(osg::NodePtr &node);
    osg::Action::ResultE traverseLeave(const osg::NodePtr &node, osg::Action::ResultE result);
    osg::Action::ResultE traverseLeave(osg::NodePtr &node, osg::Action::ResultE result);

private:
    using Column = std::vector<std::string>;

    bool gather(const osg::NodePtr &node);
    void gatherPairs(const osg::NodePtr &node);
    static void replaceNewlines(std::string &cell);

    osg::Int32 m_rowCount = 0;
    osg::Int32 m_rowTotal = 0;
    bool m_takesAllNodes;
    Column m_emptyColumn;
    std::vector<std::string> m_nodeNames;
    std::map<std::string, Column> m_columns;
    std::set<std::string> m_keys;
};

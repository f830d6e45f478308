#pragma once

#include "OSGValuePairTable.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGSingleTypeGraphOp.h>

#include <functional>
#include <string>

#define OSG_VALUE_PAIR_CSV_EXPORT __attribute__((visibility("default")))

OSG_BEGIN_NAMESPACE

/// Graph operation that gathers the value pairs attached to the nodes of a scene (ValuePairBase)
/// and writes them to a comma-separated text file: a row for each node, a column for each key.
///
/// Register a prototype with the GraphOpFactory, create the operation by its name
/// "ValuePairCSVCreator", traverse() a scene, save(), delete. One instance serves one export:
/// save() starts the rows anew, but names, columns and cells of earlier passes stay.
///
/// Nodes without a core are passed over, null nodes too. A row comes out only if it has a value
/// pair or one of the following rows does. Nothing is quoted; a newline in a value becomes a blank
/// and swallows the byte that follows it.
class OSG_VALUE_PAIR_CSV_EXPORT ValuePairCSVCreator : public SingleTypeGraphOp<NodeCore>
{
public:
    explicit ValuePairCSVCreator(const char *name);
    GraphOp *create() override;
    ~ValuePairCSVCreator() override;

    /// There are no parameters: does nothing.
    void setParams(const std::string params) override;
    /// \returns an empty text
    std::string usage() override;

    /// Whether nodes are taken that are not fully visible, which is to say that have a bit of their
    /// traversal mask cleared. False by default.
    void setCsvType(bool takesAllNodes);

    /// A function that is called now and then during a traversal, every monitorInterval nodes.
    /// When it returns false, the traversal ends, with false, and so does every later one until a
    /// monitor is set again. None by default.
    void setMonitor(std::function<bool()> monitor);
    static constexpr UInt32 monitorInterval = 1024;

    // Called by traverse(). OpenSG hands over nodes by value or by reference, depending on who
    // built it; which of the two overrides is up to its headers, so neither says `override`.
    bool travNodeEnter(const NodePtr &node);
    bool travNodeEnter(NodePtr node);
    bool travNodeLeave(const NodePtr &node);
    bool travNodeLeave(NodePtr node);

    /// Writes what was gathered since the last save(), overwriting the file.
    /// \returns true in every case; saveError() tells more
    bool save(const std::string &fileName);

    /// The errno of the last save(), 0 if everything is in the file.
    int saveError() const { return m_saveError; }

protected:
    Action::ResultE traverseEnter(const NodePtr &node);
    Action::ResultE traverseEnter(NodePtr &node);
    Action::ResultE traverseLeave(const NodePtr &node, Action::ResultE result);
    Action::ResultE traverseLeave(NodePtr &node, Action::ResultE result);

private:
    bool gather(const NodePtr &node);
    Action::ResultE enter(const NodePtr &node);
    Action::ResultE goOn() const;

    ValuePairTable m_table;
    Int32 m_rowCount = 0;
    Int32 m_rowTotal = 0;
    bool m_takesAllNodes = false;
    int m_saveError = 0;
    std::function<bool()> m_monitor;
    UInt32 m_entered = 0;
    bool m_isStopped = false;
};

OSG_END_NAMESPACE

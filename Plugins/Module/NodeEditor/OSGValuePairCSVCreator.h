#pragma once

#include "OSGValuePairTable.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGSingleTypeGraphOp.h>

#include <functional>
#include <string>

#define OSG_VALUE_PAIR_CSV_EXPORT __attribute__((visibility("default")))

OSG_BEGIN_NAMESPACE

/// A graph operation that gathers the value pairs of a scene (ValuePairBase) and writes them to
/// a comma-separated text file. The file has a row for each node and a column for each key.
///
/// Register a prototype with the GraphOpFactory, create the operation by its name
/// "ValuePairCSVCreator", traverse() a scene, save(), delete. Use one instance for one export:
/// save() restarts the rows, but names, columns and cells of earlier passes stay.
///
/// Null nodes and nodes without a core are skipped. The last row is that of the last node with
/// value pairs. Nothing is quoted. A newline in a value becomes a blank and swallows the byte after
/// it.
class OSG_VALUE_PAIR_CSV_EXPORT ValuePairCSVCreator : public SingleTypeGraphOp<NodeCore>
{
public:
    explicit ValuePairCSVCreator(const char *name);
    GraphOp *create() override;
    ~ValuePairCSVCreator() override;

    /// Does nothing: there are no parameters.
    void setParams(const std::string params) override;
    /// \returns an empty text
    std::string usage() override;

    /// If false, nodes with a cleared bit in their traversal mask are skipped. False by default.
    void setCsvType(bool takesAllNodes);

    /// Sets a function that traverse() calls every monitorInterval nodes. When it returns false,
    /// traverse() ends and returns false. Later traversals end at once, until a monitor is set
    /// again. No function by default.
    void setMonitor(std::function<bool()> monitor);
    static constexpr UInt32 monitorInterval = 1024;

    // traverse() calls these for each node with a core. OpenSG libraries pass nodes by value or by
    // reference, so there are both forms, and `override` stands at neither. The form by value calls
    // the form by reference. A derived operation overrides either form and may call gather().

    /// Gathers the node. \returns false
    virtual bool travNodeEnter(const NodePtr &node);
    virtual bool travNodeEnter(NodePtr node);
    /// Does nothing. \returns true
    virtual bool travNodeLeave(const NodePtr &node);
    virtual bool travNodeLeave(NodePtr node);

    /// Writes what was gathered since the last save(), overwriting the file.
    /// \returns true, even if writing failed: ask saveError()
    bool save(const std::string &fileName);

    /// The errno of the last save(), 0 if everything was written.
    int saveError() const { return m_saveError; }

protected:
    /// Adds a row with the node's name and value pairs.
    void gather(const NodePtr &node);

    Action::ResultE traverseEnter(const NodePtr &node);
    Action::ResultE traverseEnter(NodePtr &node);
    Action::ResultE traverseLeave(const NodePtr &node, Action::ResultE result);
    Action::ResultE traverseLeave(NodePtr &node, Action::ResultE result);

private:
    // A call by name would be ambiguous between the two forms.
    using ByValue = bool (ValuePairCSVCreator::*)(NodePtr);
    using ByReference = bool (ValuePairCSVCreator::*)(const NodePtr &);

    Action::ResultE call(ByValue callback, const NodePtr &node);
    void askMonitor();

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

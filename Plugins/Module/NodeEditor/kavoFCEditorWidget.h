#pragma once

#include "kavoCustomPropertyColor.h"

#include <qttreepropertybrowser.h>
#include <qtvariantproperty.h>

#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerPtr.h>

#include <QVector>

#include <map>
#include <optional>
#include <vector>

class QtGLenumEditorFactory;
class QtGLenumPropertyManager;

/// Property tree of one field container: a row per field, and a group per container that it leads
/// to (core, material, chunks, attachments, ...). Edits are written into the fields at once.
///
/// The tree is built anew for every container shown and does not follow changes made elsewhere.
/// A drop of a material, a light or a camera shows what was dropped. GUI thread only.
class kavoFCEditorWidget : public QtTreePropertyBrowser
{
    Q_OBJECT

public:
    /// So many containers are opened one inside the other; several times as many exhaust the stack.
    static constexpr int maxDepth = 2000;
    /// A tree with this many rows of fields opens no more containers. The title of the first one
    /// that stays closed says so, and the log does once per tree. The time that the component takes
    /// to delete rows grows with the square of their number.
    static constexpr std::size_t maxRows = 50000;

    /// \param name accepted for the host's widget convention and not used
    kavoFCEditorWidget(QWidget *parent, const char *name);
    ~kavoFCEditorWidget() override;

    /// Shows a container, from its top row on, in place of what was shown; null empties the tree.
    /// \param name stands before the container's type in the title of the top row
    void setFC(const QString &name, osg::FieldContainerPtr fc);
    /// Adds a container with its fields below a row, or as top row if parent is null. Follows
    /// pointer fields; links back to owners are cut off. Fills lists of containers last. A
    /// container inside itself, one deeper than maxDepth and one beyond maxRows gets its title
    /// only. \param expand whether the new row is open; a top row always is
    void setFC(QtProperty *parent, osg::FieldContainerPtr fc, const QString &name, bool expand);
    /// The same without fields: the container's title, with a node's name, is all.
    void setFCnr(QtProperty *parent, osg::FieldContainerPtr fc, const QString &name, bool expand);

    /// Closes the first item of a row. \returns the item, null if the row is not in the tree
    QtBrowserItem *collapseProperty(QtProperty *property);

    /// Makes the row of a field.
    /// \param typeName name of the field's type, which decides on the kind of row; its tooltip
    /// \param valueText the field's text, or what is to stand in its place
    QtProperty *createPropertyItem(
        const QString &name, const QString &typeName, const QString &valueText);
    /// Makes a group of rows from the numbers of a text, one for each of the comma-separated names.
    /// \param propertyType QVariant type of the rows
    template <class T>
    QtVariantProperty *createPropertyList(const QString &name, const QString &typeName,
        int propertyType, const QString &valueText, const QString &subNames);
    /// The numbers of real lists, vectors and points with up to 6 digits, separated by ", ". Text
    /// of other types comes back as it is.
    static QString beautifyFloats(const QString &typeName, const QString &valueText);

public slots:
    void valueChanged(QtProperty *property, const QVariant &value);
    void valueChanged(QtProperty *property, unsigned int value);
    void valueChanged(QtProperty *property, colorVal value);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    /// The field that a row stands for. The container is known by its id, for it may be gone when
    /// an edit arrives.
    struct FieldBinding
    {
        osg::UInt32 containerId;
        osg::Field *field;
        osg::BitVector fieldMask;
    };

    struct FieldSource;
    struct Element;
    struct List;
    using Lists = std::vector<List>;
    using RowText = std::optional<QString>;

    void deleteAllRows();
    void deleteRows(const QList<QtProperty *> &rows);

    QtProperty *addGroup(QtProperty *parent, const QString &title);
    void finishGroup(QtProperty *group, bool expand);
    void addUnopened(
        QtProperty *parent, const osg::FieldContainerPtr &fc, const QString &name, bool expand);
    void addFields(QtProperty *group, const osg::FieldContainerPtr &fc);
    void addField(const FieldSource &source, Lists &lists);
    void addValueRow(const FieldSource &source, const QString &text);
    void addAttachments(const FieldSource &source, Lists &lists);
    RowText addPointer(const FieldSource &source);
    RowText addPointers(const FieldSource &source, Lists &lists);
    void addNodes(const FieldSource &source, Lists &lists);
    void addChunks(const FieldSource &source);
    void addVariants(const FieldSource &source, Lists &lists);

    void writeBack(QtProperty *property, const QString &value);

    QtVariantPropertyManager *m_variantManager = nullptr;
    QtVariantEditorFactory *m_variantFactory = nullptr;
    QtGLenumPropertyManager *m_enumManager = nullptr;
    QtGLenumEditorFactory *m_enumFactory = nullptr;
    QtKavoColorPropertyManager *m_colorManager = nullptr;
    QtKavoColorEditorFactory *m_colorFactory = nullptr;
    bool m_building = false;
    std::map<QtProperty *, FieldBinding> m_bindings;
    QVector<osg::UInt32> m_path; ///< ids of the containers being filled, the outermost first
    bool m_isCut = false; ///< the tree has reached maxRows and says so
};

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

/// Property tree of one field container: a row per field, and a group per container that its fields
/// refer to (core, material, chunks, attachments, ...). Edits are written into the fields at once.
///
/// The tree is rebuilt for every container shown and does not follow changes made elsewhere. A
/// material, light or camera that is dropped on the widget replaces the container shown. GUI thread
/// only.
class kavoFCEditorWidget : public QtTreePropertyBrowser
{
    Q_OBJECT

public:
    /// Maximum number of containers inside one another; several times as many exhaust the stack.
    static constexpr int maxDepth = 2000;
    /// Maximum number of field rows. A tree that has reached it opens no more containers; the title
    /// of the first unopened one says so, and the log says it once per tree. The time that the
    /// component takes to delete rows grows with the square of their number.
    static constexpr std::size_t maxRows = 50000;

    /// \param name unused; the host's widgets have this parameter
    kavoFCEditorWidget(QWidget *parent, const char *name);
    ~kavoFCEditorWidget() override;

    /// Replaces the tree by that of another container; null empties it.
    /// \param name first part of the top row's title
    void setFC(const QString &name, osg::FieldContainerPtr fc);
    /// Adds a container and its fields below a row, or as top row if `parent` is null. Follows
    /// pointer fields except those to owners. Fills lists of containers last. A container inside
    /// itself, below maxDepth or beyond maxRows gets its title only.
    /// \param expand whether the new row is open; ignored for a top row, which is always open
    void setFC(QtProperty *parent, osg::FieldContainerPtr fc, const QString &name, bool expand);
    /// Adds the title of a container without its fields. The title includes the name of a node.
    void setFCnr(QtProperty *parent, osg::FieldContainerPtr fc, const QString &name, bool expand);

    /// Closes the first item of a row.
    /// \returns the item, null if the row is not in the tree
    QtBrowserItem *collapseProperty(QtProperty *property);

    /// Creates the row of a field.
    /// \param typeName name of the field's type, which decides on the kind of row and becomes its
    ///     tooltip
    /// \param valueText the field's text, or a text to show instead
    QtProperty *createPropertyItem(
        const QString &name, const QString &typeName, const QString &valueText);
    /// Creates a group with one row per number of the text.
    /// \param propertyType QVariant type of the rows
    /// \param subNames titles of the rows, separated by commas
    template <class T>
    QtVariantProperty *createPropertyList(const QString &name, const QString &typeName,
        int propertyType, const QString &valueText, const QString &subNames);
    /// Returns the numbers of real lists, vectors and points with up to 6 digits, separated by ",
    /// ". Returns the text of other types unchanged.
    static QString beautifyFloats(const QString &typeName, const QString &valueText);

public slots:
    void valueChanged(QtProperty *property, const QVariant &value);
    void valueChanged(QtProperty *property, unsigned int value);
    void valueChanged(QtProperty *property, colorVal value);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    /// The field behind a row. Holds the id of the container, because the container may be gone
    /// when an edit arrives.
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
    QVector<osg::UInt32> m_path; ///< ids of the containers that are being filled, outermost first
    bool m_isCut = false; ///< the tree has reached maxRows and says so
};

#include "kavoCustomPropertyGLenum.h"

#include "kavoCustomPropertyGLenum_enums.h"
#include "kavoCustomPropertyGLenum_p.h"

#include <QAbstractItemView>
#include <QSignalBlocker>

using EnumData = QtGLenumPropertyManagerPrivate::EnumData;

namespace {

QString enumName(unsigned int value, const QString &fallback = QString())
{
    const auto &names = QtGLenumPropertyManagerPrivate::enumData.enumToName;
    const auto it = names.find(value);
    return it == names.end() ? fallback : it->second;
}

std::set<unsigned int> allowedValues(const QString &field, unsigned int current)
{
    const EnumData &data = QtGLenumPropertyManagerPrivate::enumData;
    const auto it = data.nameToEnums.find(field);
    if (it != data.nameToEnums.end())
        return it->second;
    for (const std::set<unsigned int> &group : data.groups) {
        if (group.count(current))
            return group;
    }
    return {};
}

void select(QComboBox *editor, unsigned int value)
{
    editor->setCurrentIndex(
        editor->findData(value, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

} // namespace

// QtGLenumPropertyManagerPrivate

const EnumData QtGLenumPropertyManagerPrivate::enumData;

EnumData::EnumData()
{
    setupGLenumMap(enumToName, groups);
    setupNameToEnums(nameToEnums);
    enumToName[0] = QStringLiteral("GL_NONE");
}

// QtGLenumPropertyManager

QtGLenumPropertyManager::QtGLenumPropertyManager(QObject *parent)
    : QtAbstractPropertyManager(parent)
    , d_ptr(new QtGLenumPropertyManagerPrivate)
{
    d_ptr->q_ptr = this;
}

QtGLenumPropertyManager::~QtGLenumPropertyManager()
{
    qDeleteAll(properties()); // clear() would copy the set for every row
    delete d_ptr;
}

unsigned int QtGLenumPropertyManager::value(const QtProperty *property) const
{
    const auto it = d_ptr->m_values.find(property);
    return it == d_ptr->m_values.end() ? 0 : it->second.val;
}

void QtGLenumPropertyManager::setValue(QtProperty *property, unsigned int value)
{
    const auto it = d_ptr->m_values.find(property);
    if (it == d_ptr->m_values.end())
        return;
    // Deliberate: setting the same value signals again, because the field behind the property may
    // have changed.
    it->second.val = value;
    emit propertyChanged(property);
    emit valueChanged(property, value);
}

QString QtGLenumPropertyManager::valueText(const QtProperty *property) const
{
    const auto it = d_ptr->m_values.find(property);
    return it == d_ptr->m_values.end() ? QString() : enumName(it->second.val);
}

void QtGLenumPropertyManager::initializeProperty(QtProperty *property)
{
    d_ptr->m_values[property] = {};
}

void QtGLenumPropertyManager::uninitializeProperty(QtProperty *property)
{
    d_ptr->m_values.erase(property);
}

// QtGLenumEditorFactoryPrivate

void QtGLenumEditorFactoryPrivate::slotPropertyChanged(QtProperty *property, unsigned int value)
{
    for (QComboBox *editor : m_createdEditors.value(property)) {
        const QSignalBlocker blocker(editor);
        select(editor, value);
    }
}

void QtGLenumEditorFactoryPrivate::slotSetValue(unsigned int index)
{
    // The index is -1 while the combo box is being cleared. Nobody has chosen a value then.
    if (static_cast<int>(index) < 0)
        return;
    auto *editor = qobject_cast<QComboBox *>(q_ptr->sender());
    QtProperty *property = m_editorToProperty.value(editor);
    if (!property)
        return;
    if (QtGLenumPropertyManager *manager = q_ptr->propertyManager(property))
        manager->setValue(property, editor->itemData(static_cast<int>(index)).toUInt());
}

// QtGLenumEditorFactory

QtGLenumEditorFactory::QtGLenumEditorFactory(QObject *parent)
    : QtAbstractEditorFactory<QtGLenumPropertyManager>(parent)
    , d_ptr(new QtGLenumEditorFactoryPrivate)
{
    d_ptr->q_ptr = this;
}

QtGLenumEditorFactory::~QtGLenumEditorFactory()
{
    qDeleteAll(d_ptr->m_editorToProperty.keys());
    delete d_ptr;
}

void QtGLenumEditorFactory::connectPropertyManager(QtGLenumPropertyManager *manager)
{
    connect(manager, SIGNAL(valueChanged(QtProperty *, unsigned int)), this,
        SLOT(slotPropertyChanged(QtProperty *, unsigned int)));
}

QWidget *QtGLenumEditorFactory::createEditor(
    QtGLenumPropertyManager *manager, QtProperty *property, QWidget *parent)
{
    QComboBox *editor = d_ptr->createEditor(property, parent);
    editor->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    editor->setMinimumContentsLength(1);
    editor->view()->setTextElideMode(Qt::ElideRight);

    const unsigned int current = manager->value(property);
    for (unsigned int value : allowedValues(property->propertyName(), current))
        editor->addItem(QIcon(), enumName(value, QStringLiteral("unknown")), value);
    select(editor, current);

    // Signatures cannot connect a signal with an int to a slot with an unsigned int. With the
    // factory as context, sender() is still the combo box.
    connect(editor, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        [this](int index) { d_ptr->slotSetValue(static_cast<unsigned int>(index)); });
    connect(editor, SIGNAL(destroyed(QObject *)), this, SLOT(slotEditorDestroyed(QObject *)));
    return editor;
}

void QtGLenumEditorFactory::disconnectPropertyManager(QtGLenumPropertyManager *manager)
{
    disconnect(manager, SIGNAL(valueChanged(QtProperty *, unsigned int)), this,
        SLOT(slotPropertyChanged(QtProperty *, unsigned int)));
}

#include "moc_kavoCustomPropertyGLenum.cpp"

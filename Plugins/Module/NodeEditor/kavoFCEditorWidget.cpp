#include "kavoFCEditorWidget.h"

#include "kavoCustomPropertyGLenum.h"
#include "kavoDrop.h"
#include "kavoFieldText.h"
#include "kavoVariantEditorFactory.h"
#include "kavoVariantPropertyManager.h"

#include <kavoCallNames.h>
#include <kavoController.h>
#include <kavoGuarded.h>
#include <kavoLog.h>
#include <kavoMessage.h>
#include <kavoOpenSGCompat.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGThread.h>

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <cstdio>
#include <locale>
#include <sstream>

namespace {

// Ends an edit as endEditCP() does, but works without a change list and respects the ignore-change
// switch.
void endEdit(const osg::FieldContainerPtr &container, osg::BitVector mask)
{
    if (osg::ChangeList *changes = osg::Thread::getCurrentChangeList())
        changes->addChanged(container, mask);
    if (!kavoOpenSG::changesIgnored())
        container->changed(mask, osg::ChangedOrigin::External);
}

} // namespace

kavoFCEditorWidget::kavoFCEditorWidget(QWidget *parent, const char *)
    : QtTreePropertyBrowser(parent)
{
    m_variantManager = new kavoVariantPropertyManager;
    // Creates the component's static table of variant rows first, so that it is destroyed after
    // static objects that own widgets.
    m_variantManager->value(nullptr);
    connect(m_variantManager, SIGNAL(valueChanged(QtProperty *, const QVariant &)), this,
        SLOT(valueChanged(QtProperty *, const QVariant &)));
    m_variantFactory = new kavoVariantEditorFactory(this);
    setFactoryForManager(m_variantManager, m_variantFactory);

    m_enumManager = new QtGLenumPropertyManager(this);
    connect(m_enumManager, SIGNAL(valueChanged(QtProperty *, unsigned int)), this,
        SLOT(valueChanged(QtProperty *, unsigned int)));
    m_enumFactory = new QtGLenumEditorFactory(this);
    setFactoryForManager(m_enumManager, m_enumFactory);

    m_colorManager = new QtKavoColorPropertyManager(this);
    connect(m_colorManager, SIGNAL(valueChanged(QtProperty *, const colorVal)), this,
        SLOT(valueChanged(QtProperty *, const colorVal)));
    m_colorFactory = new QtKavoColorEditorFactory(this);
    setFactoryForManager(m_colorManager, m_colorFactory);

    for (auto *manager : std::initializer_list<QtAbstractPropertyManager *> {
             m_variantManager, m_enumManager, m_colorManager })
        connect(manager, &QtAbstractPropertyManager::propertyDestroyed, this,
            [this](QtProperty *row) { m_bindings.erase(row); });

    setPropertiesWithoutValueMarked(true);
    setRootIsDecorated(true);
    setAcceptDrops(true);
}

kavoFCEditorWidget::~kavoFCEditorWidget()
{
    // The component keeps pointers to a browser until its factories are unset.
    unsetFactoryForManager(m_variantManager);
    unsetFactoryForManager(m_enumManager);
    deleteAllRows();
    delete m_variantManager;
    delete m_enumManager;
    // Disconnecting the colour factory would print a warning, so the pointer is removed once the
    // manager is gone.
    connect(m_colorManager, &QObject::destroyed, this,
        [this] { unsetFactoryForManager(m_colorManager); });
    delete m_colorManager;
}

// The view gets no signals while the tree is filled and lays out all rows at the end. Otherwise it
// would lay out the open top row again for each row in it and search for every row whose text is
// set.
void kavoFCEditorWidget::setFC(const QString &name, osg::FieldContainerPtr fc)
{
    deleteAllRows();
    m_variantManager->clear();

    auto &view = *findChild<QTreeWidget *>();
    const auto layOut = qScopeGuard([&view] {
        view.doItemsLayout();
        view.scrollToTop();
    });
    const QSignalBlocker silent(view.model());
    const QScopedValueRollback<bool> building(m_building, true);
    setFC(nullptr, fc, name, false);
}

// Clears the bindings first: a row editor that closes here still sends the text typed so far.
// Resets the view first: it would search its open and spanned rows for every row that is removed.
void kavoFCEditorWidget::deleteAllRows()
{
    m_bindings.clear();
    m_isCut = false;
    setCurrentItem(nullptr);
    auto &view = *findChild<QTreeWidget *>();
    view.reset();
    const QSignalBlocker silent(view.model());
    const QList<QtProperty *> rows = properties();
    clear();
    deleteRows(rows);
}

// The manager's clear() copies the set of its rows for every row that it deletes, which takes
// seconds in a large tree. Deleting the last rows first is the fastest order. Deliberate: rows of
// the enumeration and colour managers are not deleted; they leave the tree with their groups.
void kavoFCEditorWidget::deleteRows(const QList<QtProperty *> &rows)
{
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        deleteRows((*row)->subProperties());
        if ((*row)->propertyManager() == m_variantManager)
            delete *row;
    }
}

void kavoFCEditorWidget::dragEnterEvent(QDragEnterEvent *event)
{
    if (kavoDrop::isAccepted(*event->mimeData()))
        event->acceptProposedAction();
}

// Deliberate: if a drop has several formats, they are shown one after the other and the last one
// stays.
void kavoFCEditorWidget::dropEvent(QDropEvent *event)
{
    kavoGuarded("Showing what was dropped", [&] {
        for (const auto &[name, container] : kavoDrop::containersOf(*event->mimeData()))
            setFC(name, container);
    });
}

// Ignores rows without a binding.
void kavoFCEditorWidget::writeBack(QtProperty *property, const QString &value)
{
    const auto row = m_bindings.find(property);
    if (row == m_bindings.end())
        return;
    const FieldBinding binding = row->second;
    const osg::FieldContainerPtr container
        = osg::FieldContainerFactory::the()->getContainer(binding.containerId);
    if (container == osg::NullFC) {
        kavoLog::error("kavoFCEditorWidget::valueChanged: invalid pointer!");
        return;
    }
    kavoGuarded("Writing a field", [&] {
        if (kavoFieldText::write(*binding.field, value))
            endEdit(container, binding.fieldMask);
    });
}

void kavoFCEditorWidget::valueChanged(QtProperty *property, const QVariant &value)
{
    if (!m_building)
        writeBack(property, value.toString());
}

void kavoFCEditorWidget::valueChanged(QtProperty *property, unsigned int value)
{
    if (m_building)
        return;
    std::printf("property '%s' changed to '%d'\n", property->propertyName().toUtf8().constData(),
        static_cast<int>(value));
    writeBack(property, QString::number(value));
}

// Deliberate: colour edits, and no others, make the host render its materials again, even if
// nothing was written.
void kavoFCEditorWidget::valueChanged(QtProperty *property, colorVal value)
{
    if (m_building)
        return;
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << value.r << ' ' << value.g << ' ' << value.b << ' ' << value.a;
    writeBack(property, QString::fromStdString(text.str()));

    kavoMessage message;
    kavoController::call(kavoCallNames::updateMatRender, message, 0);
}

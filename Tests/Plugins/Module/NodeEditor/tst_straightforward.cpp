#include "OSGFieldSampler.h"
#include "kavoRecordedRow.h"
#include "kavoStraightforwardBrowser.h"

#include <kavoNodePtr.h>
#include <kavoTestHost.h>

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <QScrollBar>
#include <QTreeWidget>
#include <QtTest>

namespace {

kavoNodePtr makeScene()
{
    const kavoNodePtr node(osg::Node::create());
    const osg::GeometryPtr geometry = osg::makeBoxGeo(1, 1, 1, 1, 1, 1);
    const osg::ChunkMaterialPtr material = osg::ChunkMaterial::create();
    material->addChunk(osg::MaterialChunk::create());
    geometry->setMaterial(material);
    node->setCore(geometry);
    node->addAttachment(osg::FieldSampler::create());
    return node;
}

QTreeWidget &treeOf(const QWidget &browser)
{
    return *browser.findChild<QTreeWidget *>();
}

enum RealTexts { WithRealTexts, WithoutRealTexts };

bool isReal(const QtProperty *row)
{
    const auto *variant = dynamic_cast<const QtVariantProperty *>(row);
    return variant && variant->propertyType() == QVariant::Double;
}

QString stateOf(const QTreeWidgetItem &item, const QString &text)
{
    return QStringLiteral("%1|%2|%3|%4|open %5 spanned %6 flags %7 icon %8")
        .arg(item.text(0), text, item.toolTip(0), item.toolTip(1))
        .arg(item.isExpanded())
        .arg(item.isFirstColumnSpanned())
        .arg(int(item.flags()))
        .arg(!item.icon(1).isNull());
}

void collectItems(const QTreeWidgetItem &item, const QtBrowserItem &row, RealTexts texts,
    const QString &indent, QStringList &states)
{
    const bool isHidden = texts == WithoutRealTexts && isReal(row.property());
    states.append(indent + stateOf(item, isHidden ? "real" : item.text(1)));
    const QList<QtBrowserItem *> children = row.children();
    QCOMPARE(item.childCount(), children.size());
    for (int i = 0; i < item.childCount(); ++i)
        collectItems(*item.child(i), *children[i], texts, indent + "  ", states);
}

// Returns all rows with all their data in the tree.
QStringList itemsOf(const QtTreePropertyBrowser &browser, RealTexts texts = WithRealTexts)
{
    QStringList states;
    const QTreeWidget &tree = treeOf(browser);
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        collectItems(*tree.topLevelItem(i), *browser.topLevelItems().value(i), texts, "", states);
    return states;
}

// Returns the titles of the rows that are laid out on the screen, from top to bottom.
QStringList shownRows(const QWidget &browser)
{
    QStringList titles;
    const QTreeWidget &tree = treeOf(browser);
    for (auto *item = tree.topLevelItem(0); item; item = tree.itemBelow(item))
        titles.append(item->text(0) + ' ' + QString::number(tree.visualItemRect(item).top()));
    return titles;
}

// Returns the signals of an editor while it replaces one container by another.
struct SignalLog
{
    explicit SignalLog(kavoFCEditorWidget &editor)
    {
        const auto *manager = editor.properties().constFirst()->propertyManager();
        QObject::connect(manager, &QtAbstractPropertyManager::propertyInserted, &editor,
            [this](QtProperty *row, QtProperty *parent, QtProperty *after) {
                lines.append(QStringLiteral("%1 below %2 after %3")
                                 .arg(row->propertyName(), parent->propertyName(),
                                     after ? after->propertyName() : QString()));
            });
        watch(editor, &QtTreePropertyBrowser::expanded, "opened ");
        watch(editor, &QtTreePropertyBrowser::collapsed, "closed ");
        watch(editor, &QtTreePropertyBrowser::currentItemChanged, "current ");
    }

    template <class Signal>
    void watch(QtTreePropertyBrowser &browser, Signal signal, const QString &what)
    {
        QObject::connect(&browser, signal, &browser, [this, what](QtBrowserItem *item) {
            lines.append(what + (item ? item->property()->propertyName() : QString()));
        });
    }

    QStringList lines;
};

} // namespace

// Filling and emptying the tree in the fast way has the same result as in the straightforward way.
class tst_Straightforward : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theTreeEndsLikeOneWhoseViewFollowsEachRow();
    void aSecondTreeEndsLikeOneWhoseViewFollowsEachRow();
    void anEmptiedTreeIsLaidOutEmpty();
    void theTreeIsThatOfThePlainComponent();
    void theSignalsAreThoseOfAnEditorWhoseViewFollowsEachRow();
    void aTreeThatCouldNotBeFilledIsLaidOutWithTheRowsItHas();
    void anotherContainerIsShownFromItsTopRowOn();
    void theDownKeyGoesToTheTopRowOfANewTree();

private:
    void show();
    void showPlainly();
    void emptyPlainly();

    kavoNodePtr m_node;
    kavoFCEditorWidget *m_editor = nullptr;
    kavoFCEditorWidget *m_plain = nullptr; ///< filled without setFC(name, container)
};

void tst_Straightforward::init()
{
    m_node = makeScene();
    for (kavoFCEditorWidget **editor : { &m_editor, &m_plain }) {
        *editor = new kavoFCEditorWidget(nullptr, nullptr);
        (*editor)->resize(400, 300);
        (*editor)->show();
    }
}

void tst_Straightforward::cleanup()
{
    osg::FieldSampler::accessThrows = false;
    delete m_editor;
    delete m_plain;
    m_node = kavoNodePtr();
}

void tst_Straightforward::show()
{
    m_editor->setFC("node", osg::NodePtr(m_node));
}

void tst_Straightforward::showPlainly()
{
    m_plain->setFC(nullptr, osg::NodePtr(m_node), "node", false);
}

void tst_Straightforward::emptyPlainly()
{
    const auto *manager = m_plain->properties().value(0)->propertyManager();
    m_plain->clear();
    manager->clear();
}

void tst_Straightforward::theTreeEndsLikeOneWhoseViewFollowsEachRow()
{
    show();
    showPlainly();
    QVERIFY(itemsOf(*m_editor).size() > 100);
    QCOMPARE(itemsOf(*m_editor), itemsOf(*m_plain));
    QVERIFY(shownRows(*m_editor).size() > 20);
    QCOMPARE(shownRows(*m_editor), shownRows(*m_plain));
}

void tst_Straightforward::aSecondTreeEndsLikeOneWhoseViewFollowsEachRow()
{
    show();
    show();
    showPlainly();
    emptyPlainly();
    showPlainly();
    QCOMPARE(itemsOf(*m_editor), itemsOf(*m_plain));
    QCOMPARE(shownRows(*m_editor), shownRows(*m_plain));
}

void tst_Straightforward::anEmptiedTreeIsLaidOutEmpty()
{
    show();
    m_editor->setFC("node", osg::NullFC);
    const QTreeWidget &tree = treeOf(*m_editor);
    QCOMPARE(tree.topLevelItemCount(), 0);
    QCOMPARE(tree.itemAt(5, 5), nullptr);
    QCOMPARE(tree.verticalScrollBar()->maximum(), 0);
}

// Except for real numbers, which the component rounds to two decimals.
void tst_Straightforward::theTreeIsThatOfThePlainComponent()
{
    kavoStraightforwardBrowser plain;
    show();
    plain.build(kavoRecordedRow::record(*m_editor));
    QCOMPARE(itemsOf(*m_editor, WithoutRealTexts), itemsOf(plain, WithoutRealTexts));
}

void tst_Straightforward::theSignalsAreThoseOfAnEditorWhoseViewFollowsEachRow()
{
    show();
    showPlainly();
    for (kavoFCEditorWidget *editor : { m_editor, m_plain })
        editor->setCurrentItem(editor->topLevelItems().constFirst()->children().constLast());
    SignalLog ours(*m_editor), theirs(*m_plain);
    show();
    emptyPlainly();
    showPlainly();
    QVERIFY(ours.lines.size() > 100);
    QVERIFY(ours.lines.contains("current "));
    QCOMPARE(ours.lines, theirs.lines);
}

void tst_Straightforward::aTreeThatCouldNotBeFilledIsLaidOutWithTheRowsItHas()
{
    show();
    osg::FieldSampler::accessThrows = true;
    QVERIFY_EXCEPTION_THROWN(show(), int);
    QVERIFY_EXCEPTION_THROWN(showPlainly(), int);
    QCOMPARE(itemsOf(*m_editor), itemsOf(*m_plain));
    QVERIFY(shownRows(*m_editor).size() > 1);
    QCOMPARE(shownRows(*m_editor), shownRows(*m_plain));
}

void tst_Straightforward::anotherContainerIsShownFromItsTopRowOn()
{
    show();
    const QScrollBar &bar = *treeOf(*m_editor).verticalScrollBar();
    treeOf(*m_editor).scrollToBottom();
    QVERIFY(bar.value() > 0);
    m_editor->setFC("core", m_node->getCore());
    QVERIFY(bar.maximum() > 0);
    QCOMPARE(bar.value(), 0);
}

void tst_Straightforward::theDownKeyGoesToTheTopRowOfANewTree()
{
    show();
    m_editor->setCurrentItem(m_editor->topLevelItems().constFirst()->children().constLast());
    show();
    QTest::keyClick(&treeOf(*m_editor), Qt::Key_Down);
    QVERIFY(m_editor->currentItem());
    QCOMPARE(m_editor->currentItem(), m_editor->topLevelItems().constFirst());
}

KAVO_TEST_MAIN(tst_Straightforward)
#include "tst_straightforward.moc"

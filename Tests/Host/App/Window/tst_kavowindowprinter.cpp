#include "Window/kavoWindowPrinter.h"
#include <kavoTestHost.h>

#include <qttreepropertybrowser.h>
#include <qtvariantproperty.h>

#include <QComboBox>
#include <QLabel>
#include <QStandardItemModel>
#include <QTest>
#include <QTextStream>
#include <QTreeView>

class tst_WindowPrinter : public QObject
{
    Q_OBJECT

private slots:
    void aBrowserPrintsNamesAndValuesIndented();
    void closedBranchesAreNotLeftOut();
    void aTreeViewPrintsItsColumns();
    void aViewWithoutRowsPrintsNothing();
    void aValueOfSeveralLinesStaysOnOne();
    void theListOfAComboBoxIsNoRow();
    void aWindowWithoutRowsIsRefused();
};

static QString printed(QWidget &window)
{
    QString text;
    QTextStream out(&text);
    return kavoWindowPrinter(out).print(&window) ? text : QStringLiteral("refused");
}

namespace {

struct Browser
{
    Browser()
    {
        group = manager.addProperty(QtVariantPropertyManager::groupTypeId(), "core Transform (7)");
        value = manager.addProperty(QVariant::String, "matrix");
        value->setValue("1 0 0");
        group->addSubProperty(value);
        browser.addProperty(group);
    }

    QWidget window;
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser { &window };
    QtVariantProperty *group, *value;
};

} // namespace

void tst_WindowPrinter::aBrowserPrintsNamesAndValuesIndented()
{
    Browser browser;
    QCOMPARE(printed(browser.window), QStringLiteral("core Transform (7)\t\n  matrix\t1 0 0\n"));
}

void tst_WindowPrinter::closedBranchesAreNotLeftOut()
{
    Browser browser;
    const QString open = printed(browser.window);
    browser.browser.setExpanded(browser.browser.topLevelItem(browser.group), false);
    QCOMPARE(printed(browser.window), open);
}

void tst_WindowPrinter::aTreeViewPrintsItsColumns()
{
    QWidget window;
    QStandardItemModel model(0, 3);
    model.appendRow(
        { new QStandardItem("Root"), new QStandardItem("Group"), new QStandardItem("173") });
    model.item(0)->appendRow({ new QStandardItem("Wheel"), new QStandardItem("Transform") });
    QTreeView view(&window);
    view.setModel(&model);
    QCOMPARE(printed(window), QStringLiteral("Root\tGroup\t173\n  Wheel\tTransform\n"));
}

void tst_WindowPrinter::aViewWithoutRowsPrintsNothing()
{
    QWidget window;
    QStandardItemModel model;
    QTreeView view(&window);
    view.setModel(&model);
    QCOMPARE(printed(window), QString());
}

void tst_WindowPrinter::aValueOfSeveralLinesStaysOnOne()
{
    QWidget window;
    QStandardItemModel model;
    model.appendRow({ new QStandardItem("note"), new QStandardItem("a\nb") });
    QTreeView view(&window);
    view.setModel(&model);
    QCOMPARE(printed(window), QStringLiteral("note\ta\\nb\n"));
}

void tst_WindowPrinter::theListOfAComboBoxIsNoRow()
{
    QWidget window;
    QComboBox choice(&window);
    choice.addItem("a");
    choice.view();
    QCOMPARE(printed(window), QStringLiteral("refused"));
}

void tst_WindowPrinter::aWindowWithoutRowsIsRefused()
{
    QLabel window("just a label");
    QCOMPARE(printed(window), QStringLiteral("refused"));
}

KAVO_TEST_MAIN(tst_WindowPrinter)
#include "tst_kavowindowprinter.moc"

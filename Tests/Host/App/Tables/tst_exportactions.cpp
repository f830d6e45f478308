#include "kavoTableFixture.h"

#include "Basics/kavoTaskError.h"
#include "Tables/kavoExportActions.h"
#include "Window/kavoMainWindow.h"
#include <kavoConsoleCapture.h>
#include <kavoDialogUser.h>
#include <kavoRealInput.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <exception>
#include <memory>
#include <stdexcept>

using kavoTestPairs::addNode;

Q_DECLARE_METATYPE(std::exception_ptr)

namespace {

// Returns when the dialogs that the action opens have closed.
void trigger(QMenu &menu, const QString &text)
{
    for (QAction *action : menu.findChildren<QAction *>()) {
        if (action->text().remove('&') == text)
            action->trigger();
    }
}

template <class Widget> Widget *child(const QDialog &dialog, const QString &text)
{
    for (Widget *widget : dialog.findChildren<Widget *>()) {
        if (widget->text().remove('&') == text)
            return widget;
    }
    return nullptr;
}

void accept(QDialog &dialog)
{
    const auto *buttons = dialog.findChild<QDialogButtonBox *>();
    QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

} // namespace

class tst_ExportActions : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void valuePairsOfTheSelectionAreExported();
    void withoutASelectionOnlyTheSceneCanBeExported();
    void aTableIsExportedAsChosen();
    void aWrongPatternIsExplained();
    void theFormatChosenLastIsOfferedAgain();
    void aTableIsImported();
    void anImportAsksOnlyForWhatItCannotDetect();
    void jsonLinesWithoutAnEndingCanBeImportedAgain();
    void rowsWithoutAPlaceAreShown();
    void aFailureIsSignaled_data();
    void aFailureIsSignaled();
    void theMainWindowSaysWhyAFileCannotBeWritten_data();
    void theMainWindowSaysWhyAFileCannotBeWritten();
    void theProgressDialogCancels();

private:
    QByteArray written(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_settings;
    std::unique_ptr<kavoTableFixture> m_table;
    std::unique_ptr<kavoConsoleCapture> m_console;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<kavoExportActions> m_actions;
    std::unique_ptr<kavoDialogUser> m_user;
    osg::NodePtr m_mast;
};

void tst_ExportActions::init()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QVERIFY(kavoTestHost::show());
    m_settings = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings->path());
    m_console = std::make_unique<kavoConsoleCapture>(kavoConsoleCapture::StandardOutput);
    m_table = std::make_unique<kavoTableFixture>();
    m_mast = addNode(m_table->root, "Mast", { { "color", "red" } });
    kavoScenegraph::setRoot(m_table->root);
    m_menu = std::make_unique<QMenu>();
    m_actions = std::make_unique<kavoExportActions>(&kavoTestHost::mainWindow(), m_menu.get());
    m_user = std::make_unique<kavoDialogUser>();
}

void tst_ExportActions::cleanup()
{
    kavoScenegraph::setRoot(osg::NullFC);
    m_user.reset();
    m_actions.reset();
    m_menu.reset();
    m_table.reset();
    m_console.reset();
}

QByteArray tst_ExportActions::written(const QString &name) const
{
    QFile file(m_table->path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
}

void tst_ExportActions::valuePairsOfTheSelectionAreExported()
{
    kavoScenegraph::setSelectedNode(m_mast);
    m_mast->setTravMask(1);
    m_user->willDo([](QDialog &dialog) {
        QTest::mouseClick(
            child<QRadioButton>(dialog, "Selected node and all below"), Qt::LeftButton);
        child<QCheckBox>(dialog, "Also nodes that are not fully visible")->click();
        accept(dialog);
    });
    m_user->willChooseFile(m_table->path("p.csv"));
    trigger(*m_menu, "Value Pairs (CSV)...");
    QVERIFY(m_user->isDone());
    QCOMPARE(written("p.csv"), QByteArray("nodes\\keys,color,\nMast,red,\n"));
}

void tst_ExportActions::withoutASelectionOnlyTheSceneCanBeExported()
{
    bool isEnabled = true;
    m_user->willDo([&](QDialog &dialog) {
        isEnabled = child<QRadioButton>(dialog, "Selected node and all below")->isEnabled();
        accept(dialog);
    });
    m_user->willChooseFile(m_table->path("p.csv"));
    trigger(*m_menu, "Value Pairs (CSV)...");
    QVERIFY(!isEnabled);
    QCOMPARE(written("p.csv"), QByteArray("nodes\\keys,color,\nHull,,\nMast,red,\n"));
}

void tst_ExportActions::aTableIsExportedAsChosen()
{
    m_user->willDo([](QDialog &dialog) {
        dialog.findChildren<QComboBox *>().at(1)->setCurrentText("Semicolon");
        dialog.findChildren<QLineEdit *>().first()->setText("col*");
        accept(dialog);
    });
    m_user->willChooseFile(m_table->path("t.csv"));
    trigger(*m_menu, "Table...");
    QVERIFY(m_user->isDone());
    QVERIFY(written("t.csv").startsWith("id;path;name;type;color\r\n"));
    QVERIFY(written("t.csv").endsWith(";/Hull/Mast;Mast;Group;red\r\n"));
}

void tst_ExportActions::aWrongPatternIsExplained()
{
    bool staysOpen = false;
    m_user->willDo([&](QDialog &dialog) {
        dialog.findChildren<QLineEdit *>().last()->setText("[abc");
        accept(dialog);
        staysOpen = dialog.isVisible();
        dialog.reject();
    });
    m_user->willPress(QMessageBox::Ok);
    trigger(*m_menu, "Table...");
    QVERIFY(m_user->isDone());
    QVERIFY2(
        m_user->questions().value(0).contains("'[abc'"), qPrintable(m_user->questions().value(0)));
    QVERIFY(staysOpen);
}

void tst_ExportActions::theFormatChosenLastIsOfferedAgain()
{
    QString offered;
    m_user->willDo([](QDialog &dialog) {
        dialog.findChildren<QComboBox *>().at(1)->setCurrentText("Semicolon");
        accept(dialog);
    });
    m_user->willChooseFile(m_table->path("t.csv"));
    trigger(*m_menu, "Table...");
    m_user->willDo([&](QDialog &dialog) {
        offered = dialog.findChildren<QComboBox *>().at(1)->currentText();
        dialog.reject();
    });
    trigger(*m_menu, "Table...");
    QCOMPARE(offered, QString("Semicolon"));
}

void tst_ExportActions::aTableIsImported()
{
    const QByteArray edited = m_table->exported().replace("red", "blue");
    QFile file(m_table->path("t.csv"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(edited) == edited.size());
    file.close();
    m_user->willChooseFile(file.fileName());
    m_user->willDo(accept);
    trigger(*m_menu, "Import Table...");
    QVERIFY(m_user->isDone());
    QVERIFY(
        kavoTestPairs::of(m_mast) == (std::vector<kavoTestPairs::Pair> { { "color", "blue" } }));
    auto *box = kavoTestHost::mainWindow().findChild<QMessageBox *>();
    QCOMPARE(box->text(), QString("Changed values: 1, nodes: 1"));
    box->close();
}

void tst_ExportActions::anImportAsksOnlyForWhatItCannotDetect()
{
    m_table->exported();
    QStringList labels;
    m_user->willChooseFile(m_table->path());
    m_user->willDo([&](QDialog &dialog) {
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            labels << label->text();
        for (const QCheckBox *box : dialog.findChildren<QCheckBox *>())
            labels << box->text();
        dialog.reject();
    });
    trigger(*m_menu, "Import Table...");
    QVERIFY(m_user->isDone());
    QCOMPARE(labels, (QStringList { "&Decimal separator:", "Put an apostrophe before &formulas" }));
}

void tst_ExportActions::jsonLinesWithoutAnEndingCanBeImportedAgain()
{
    m_user->willDo([](QDialog &dialog) {
        dialog.findChildren<QComboBox *>().at(0)->setCurrentText("JSON Lines");
        accept(dialog);
    });
    m_user->willChooseFile(m_table->path("t"));
    trigger(*m_menu, "Table...");
    QVERIFY(written("t.jsonl").endsWith("\"values\":{\"color\":\"red\"}}\n"));
    QVERIFY(QFile::rename(m_table->path("t.jsonl"), m_table->path("t.txt")));
    kavoTestPairs::attachment(m_mast)->getValues()[0] = "blue";
    m_user->willChooseFile(m_table->path("t.txt"));
    m_user->willDo(accept);
    trigger(*m_menu, "Import Table...");
    QVERIFY(m_user->isDone());
    QVERIFY(kavoTestPairs::of(m_mast) == (std::vector<kavoTestPairs::Pair> { { "color", "red" } }));
    kavoTestHost::mainWindow().findChild<QMessageBox *>()->close();
}

void tst_ExportActions::rowsWithoutAPlaceAreShown()
{
    kavoTableImport::Report report;
    report.unplacedRows << "line 7: nowhere";
    m_actions->show(report);
    QPointer<QMessageBox> box = kavoTestHost::mainWindow().findChild<QMessageBox *>();
    QVERIFY(box->text().contains("Rows without a place in this scene: 1"));
    QCOMPARE(box->detailedText(), QString("line 7: nowhere"));
    box->close();
    QTRY_VERIFY(!box);
}

void tst_ExportActions::aFailureIsSignaled_data()
{
    QTest::addColumn<std::exception_ptr>("failure");
    QTest::addColumn<QString>("reason");
    QTest::newRow("of the host") << std::make_exception_ptr(kavoTaskError("no way")) << "no way";
    QTest::newRow("of a plug-in") << std::make_exception_ptr(std::runtime_error("no way"))
                                  << "no way";
    QTest::newRow("that is no std::exception") << std::make_exception_ptr(1) << "unknown exception";
}

void tst_ExportActions::aFailureIsSignaled()
{
    QFETCH(std::exception_ptr, failure);
    QSignalSpy failed(m_actions.get(), &kavoExportActions::failed);
    m_actions->run("Try", [&](const kavoMonitor &) { std::rethrow_exception(failure); });
    QCOMPARE(failed.size(), 1);
    QTEST(failed[0][0].toString(), "reason");
}

void tst_ExportActions::theMainWindowSaysWhyAFileCannotBeWritten_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("value pairs") << "Value Pairs (CSV)...";
    QTest::newRow("table") << "Table...";
}

void tst_ExportActions::theMainWindowSaysWhyAFileCannotBeWritten()
{
    kavoMainWindow window;
    kavoScenegraph::setRoot(m_table->root);
    const QString file = m_table->path("no such folder/a.csv");
    m_user->willDo(accept);
    m_user->willChooseFile(file);
    QFETCH(QString, action);
    trigger(*window.menuBar()->findChild<QMenu *>(), action);
    QVERIFY(m_user->isDone());
    auto *box = window.findChild<QMessageBox *>();
    QVERIFY(box && box->isVisible());
    QCOMPARE(box->text(), "Cannot write '" + file + "': No such file or directory");
}

void tst_ExportActions::theProgressDialogCancels()
{
    int steps = 0;
    m_actions->run("Wait", [&](const kavoMonitor &monitor) {
        for (bool goOn = true; goOn && steps < 1000; ++steps) {
            QTest::qSleep(10);
            goOn = monitor(steps / 10);
            auto *dialog = kavoTestHost::mainWindow().findChild<QProgressDialog *>();
            if (dialog->isVisible())
                kavoRealInput::click(dialog->findChild<QPushButton *>());
        }
    });
    QVERIFY(steps < 1000);
}

KAVO_TEST_MAIN(tst_ExportActions)
#include "tst_exportactions.moc"

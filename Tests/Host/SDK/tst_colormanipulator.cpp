#include "kavoPickerFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

#include <limits>

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

} // namespace

class tst_ColorManipulator : public QObject, private kavoPickerFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theNameIsTheObjectName();
    void theOnlySignalIsColorChanged();
    void rgbComesBackAsHsv_data();
    void rgbComesBackAsHsv();
    void componentsAreNotRounded();
    void brighterThanWhiteIsKept();
    void notFiniteComponentsCountAsZero();
    void settingTheColorDoesNotSignal();
    void fitsIntoARow();
    void keysOpenThePopup_data();
    void keysOpenThePopup();
    void otherKeysStayWithTheParent_data();
    void otherKeysStayWithTheParent();
    void aLeftClickOpensThePopup();
    void hexCodesAreCopiedAndPasted();
    void otherTextIsNotPasted();
    void thePickerDiesWithItsPopupOpen();
};

void tst_ColorManipulator::init()
{
    setUp();
}

void tst_ColorManipulator::cleanup()
{
    tearDown();
}

void tst_ColorManipulator::theNameIsTheObjectName()
{
    QCOMPARE(m_picker->objectName(), QStringLiteral("picker"));
    QCOMPARE(m_picker->parentWidget(), m_window.get());
    QCOMPARE(QKAVOColorManipulator(nullptr, nullptr).objectName(), QString());
}

void tst_ColorManipulator::theOnlySignalIsColorChanged()
{
    const QMetaObject &metaObject = QKAVOColorManipulator::staticMetaObject;
    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 1);
    QCOMPARE(metaObject.method(metaObject.methodOffset()).methodSignature(),
        QByteArray("colorChanged()"));
}

void tst_ColorManipulator::rgbComesBackAsHsv_data()
{
    QTest::addColumn<Components>("rgb");
    QTest::addColumn<Components>("hsv");
    QTest::newRow("black") << Components { 0, 0, 0 } << Components { 0, 0, 0 };
    QTest::newRow("grey") << Components { 0.5f, 0.5f, 0.5f } << Components { 0, 0, 0.5f };
    QTest::newRow("white") << Components { 1, 1, 1 } << Components { 0, 0, 1 };
    QTest::newRow("red") << Components { 1, 0, 0 } << Components { 0, 1, 1 };
    QTest::newRow("orange") << Components { 1, 0.5f, 0 } << Components { 30, 1, 1 };
    QTest::newRow("yellow") << Components { 1, 1, 0 } << Components { 60, 1, 1 };
    QTest::newRow("green") << Components { 0, 1, 0 } << Components { 120, 1, 1 };
    QTest::newRow("cyan") << Components { 0, 1, 1 } << Components { 180, 1, 1 };
    QTest::newRow("dark blue") << Components { 0, 0, 0.5f } << Components { 240, 1, 0.5f };
    QTest::newRow("pale magenta") << Components { 1, 0.5f, 1 } << Components { 300, 0.5f, 1 };
    QTest::newRow("rose") << Components { 1, 0, 0.5f } << Components { 330, 1, 1 };
}

void tst_ColorManipulator::rgbComesBackAsHsv()
{
    QFETCH(Components, rgb);
    m_picker->setColor(rgb[0], rgb[1], rgb[2]);
    QTEST(hsv(*m_picker), "hsv");
}

void tst_ColorManipulator::componentsAreNotRounded()
{
    m_picker->setColor(0.12345678f, 0.1f, 0.07654321f);
    const auto [hue, saturation, value, unused] = m_picker->getColor();
    Q_UNUSED(unused)
    QCOMPARE(value, 0.12345678f);
    QCOMPARE(saturation, (0.12345678f - 0.07654321f) / 0.12345678f);
    QCOMPARE(hue, 60 * (0.1f - 0.07654321f) / (0.12345678f - 0.07654321f));
}

void tst_ColorManipulator::brighterThanWhiteIsKept()
{
    m_picker->setColor(3, 1.5f, 0);
    QCOMPARE(hsv(*m_picker), Components({ 30, 1, 3 }));
}

void tst_ColorManipulator::notFiniteComponentsCountAsZero()
{
    m_picker->setColor(infinity, std::numeric_limits<float>::quiet_NaN(), 0.5f);
    QCOMPARE(hsv(*m_picker), Components({ 240, 1, 0.5f }));
}

void tst_ColorManipulator::settingTheColorDoesNotSignal()
{
    open();
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    m_picker->setColor(1, 0, 0);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(child<QLineEdit>("hex")->text(), QStringLiteral("#ff0000"));
}

void tst_ColorManipulator::fitsIntoARow()
{
    QVERIFY(m_picker->minimumSizeHint().height() <= m_picker->fontMetrics().height());
    QVERIFY(m_picker->sizeHint().width()
        > m_picker->fontMetrics().horizontalAdvance(QStringLiteral("#ffffff")));
    QCOMPARE(m_picker->focusPolicy(), Qt::WheelFocus);
}

void tst_ColorManipulator::keysOpenThePopup_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Space") << int(Qt::Key_Space) << Qt::KeyboardModifiers();
    QTest::newRow("F4") << int(Qt::Key_F4) << Qt::KeyboardModifiers();
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::AltModifier);
}

void tst_ColorManipulator::keysOpenThePopup()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QTest::keyClick(m_picker, Qt::Key(key), modifiers);
    QVERIFY(popup() && popup()->isVisible());
    QCOMPARE(popup()->parentWidget(), m_picker);
    QCOMPARE(popup()->focusWidget(), child<QLineEdit>("hex"));
}

void tst_ColorManipulator::otherKeysStayWithTheParent_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("Down") << int(Qt::Key_Down);
}

void tst_ColorManipulator::otherKeysStayWithTheParent()
{
    QFETCH(int, key);
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(m_picker, &event);
    QVERIFY(!event.isAccepted());
    QVERIFY(!popup());
}

void tst_ColorManipulator::aLeftClickOpensThePopup()
{
    QTest::mouseClick(m_picker, Qt::RightButton);
    QVERIFY(!popup());
    QTest::mouseClick(m_picker, Qt::LeftButton);
    QVERIFY(popup() && popup()->isVisible());
}

void tst_ColorManipulator::hexCodesAreCopiedAndPasted()
{
    QTest::keySequence(m_picker, QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("#339966"));
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    QGuiApplication::clipboard()->setText(" #ff0000\n");
    QTest::keySequence(m_picker, QKeySequence::Paste);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(hsv(*m_picker), Components({ 0, 1, 1 }));
}

void tst_ColorManipulator::otherTextIsNotPasted()
{
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    QGuiApplication::clipboard()->setText("a text");
    QTest::keySequence(m_picker, QKeySequence::Paste);
    QCOMPARE(changed.count(), 0);
}

void tst_ColorManipulator::thePickerDiesWithItsPopupOpen()
{
    open();
    const QPointer<QWidget> open = popup();
    delete m_picker;
    QVERIFY(!open);
    QVERIFY(!QApplication::activePopupWidget());
}

QTEST_MAIN(tst_ColorManipulator)
#include "tst_colormanipulator.moc"

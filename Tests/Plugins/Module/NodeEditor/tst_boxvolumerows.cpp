#include "OSGBoxSampler.h"
#include "kavoTreeRows.h"

#include <kavoConsoleCapture.h>
#include <kavoTestHost.h>

#include <QtTest>

using namespace kavoTreeRows;

// Rows of a field type that only our OpenSG has.
class tst_BoxVolumeRows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void subRowsShowTheNumbersOfTheField();
    void anEditOfASubRowChangesNothing();
    void onlyTheGroupIsBound();

private:
    QtProperty *group() const { return row(*m_editor, "box (SFBoxVolume)"); }
    int boundRows(const QList<QtProperty *> &rows);

    std::unique_ptr<kavoFCEditorWidget> m_editor;
    osg::BoxSamplerPtr m_sampler;
};

void tst_BoxVolumeRows::init()
{
    m_sampler = osg::BoxSampler::create();
    osg::addRefCP(m_sampler);
    m_sampler->box.getValue().setBounds(-1, -2, -3, 1, 2, 3);
    m_editor = std::make_unique<kavoFCEditorWidget>(nullptr, nullptr);
    m_editor->setFC("sampler", m_sampler);
}

void tst_BoxVolumeRows::cleanup()
{
    m_editor.reset();
    osg::subRefCP(m_sampler);
}

// Destroys the container first, because an edit of a bound row then logs an error.
int tst_BoxVolumeRows::boundRows(const QList<QtProperty *> &rows)
{
    osg::subRefCP(m_sampler);
    m_sampler = osg::NullFC;
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    for (QtProperty *row : rows)
        m_editor->valueChanged(row, QVariant("1"));
    return errors.text().count("kavoFCEditorWidget::valueChanged: invalid pointer!");
}

void tst_BoxVolumeRows::subRowsShowTheNumbersOfTheField()
{
    QStringList numbers;
    for (const QtProperty *sub : group()->subProperties())
        numbers.append(sub->valueText());
    QCOMPARE(numbers.join(' '), QString("-1 -2 -3 1 2 3"));
}

void tst_BoxVolumeRows::anEditOfASubRowChangesNothing()
{
    for (QtProperty *sub : group()->subProperties())
        dynamic_cast<QtVariantProperty &>(*sub).setValue(7);
    QCOMPARE(m_sampler->box.getValue().getMin()[0], -1.f);
    QCOMPARE(m_sampler->box.getValue().getMax()[2], 3.f);
}

void tst_BoxVolumeRows::onlyTheGroupIsBound()
{
    QList<QtProperty *> rows = group()->subProperties();
    QCOMPARE(rows.size(), 6);
    rows.append(group());
    QCOMPARE(boundRows(rows), 1);
}

KAVO_TEST_MAIN(tst_BoxVolumeRows)
#include "tst_boxvolumerows.moc"

#include "kavoSampledEditor.h"

#include "kavoTreeRows.h"

#include <QtTest>

kavoSampledEditor::kavoSampledEditor()
    : m_editor(std::make_unique<kavoFCEditorWidget>(nullptr, nullptr))
    , m_sampler(osg::FieldSampler::create())
{
    osg::addRefCP(m_sampler);
    refresh();
}

kavoSampledEditor::~kavoSampledEditor()
{
    m_editor.reset();
    destroySampler();
}

void kavoSampledEditor::refresh()
{
    m_editor->setFC("sampler", m_sampler);
}

void kavoSampledEditor::destroySampler()
{
    if (m_sampler != osg::NullFC)
        osg::subRefCP(m_sampler);
    m_sampler = osg::NullFC;
}

osg::Field &kavoSampledEditor::field(const QString &name)
{
    osg::FieldContainer &container = *m_sampler;
    return *container.getField(name.toUtf8().constData());
}

QByteArray kavoSampledEditor::textOf(const QString &name)
{
    std::string text;
    field(name).getValueByStr(text);
    return QByteArray::fromStdString(text);
}

void kavoSampledEditor::show()
{
    refresh();
    m_editor->resize(400, 600);
    m_editor->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_editor.get()));
}

QWidget *kavoSampledEditor::open(const QString &name)
{
    return kavoTreeRows::edit(*m_editor, name);
}

QWidget *kavoSampledEditor::type(const QString &name, const QString &text)
{
    QWidget *rowEditor = open(name);
    QTest::keyClick(rowEditor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(rowEditor, text);
    return rowEditor;
}

void kavoSampledEditor::press(QWidget *rowEditor, Qt::Key key)
{
    QTest::keyClick(rowEditor, key);
    QCoreApplication::processEvents();
}

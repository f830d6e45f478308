// Measures a single row: making it, beautifying its text and writing an edit back.

#include "BenchClock.h"
#include "BenchHost.h"
#include "BenchScenes.h"
#include "BenchTable.h"

#include <kavoFCEditorWidget.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGThread.h>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int repetitions = 2000;
constexpr int rounds = 9;

// The slot of enumerations prints every change to standard output.
class SilentOutput
{
public:
    SilentOutput()
        : m_output(dup(STDOUT_FILENO))
    {
        std::fflush(stdout);
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDOUT_FILENO);
        close(nowhere);
    }

    ~SilentOutput()
    {
        std::fflush(stdout);
        dup2(m_output, STDOUT_FILENO);
        close(m_output);
    }

    SilentOutput(const SilentOutput &) = delete;
    SilentOutput &operator=(const SilentOutput &) = delete;

private:
    int m_output;
};

template <class Work> double microseconds(Work work)
{
    const SilentOutput silent;
    return 1000 / double(repetitions) * BenchClock::median(rounds, [&] {
        for (int i = 0; i < repetitions; ++i)
            work();
    });
}

struct Kind
{
    const char *typeName;
    const char *text;
};

const Kind kinds[] = {
    { "SFBool", "true" },
    { "SFInt32", "42" },
    { "SFReal32", "0.5" },
    { "SFBoxVolume", "0 0 0 1 1 1" },
    { "SFQuaternion", "0 0 0 1" },
    { "SFGLenum", "9729" },
    { "SFColor4f", "0.1 0.2 0.3 1" },
    { "SFString", "some text" },
    { "SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1" },
};

void deleteRow(QtProperty *row)
{
    for (QtProperty *sub : row->subProperties())
        delete sub;
    delete row;
}

void making(kavoFCEditorWidget &editor)
{
    for (const Kind &kind : kinds) {
        const QString typeName = kind.typeName;
        const QString text = kind.text;
        const QString name = "field";
        const double time
            = microseconds([&] { deleteRow(editor.createPropertyItem(name, typeName, text)); });
        BenchTable::figure(
            ("createPropertyItem and delete: " + typeName).toStdString(), time, "us");
    }
}

void beautifying()
{
    const QString vector = "1.000000e+00  2.500000e+00  3.333333e-01";
    QString list;
    for (int i = 0; i < 99; ++i)
        list += QString::number(i / 7.0, 'e') + ", ";
    BenchTable::figure("beautifyFloats: SFVec3f",
        microseconds([&] { kavoFCEditorWidget::beautifyFloats("SFVec3f", vector); }), "us");
    BenchTable::figure("beautifyFloats: MFReal32 of 99 numbers",
        microseconds([&] { kavoFCEditorWidget::beautifyFloats("MFReal32", list); }), "us");
    BenchTable::figure("beautifyFloats: text of another type",
        microseconds([&] { kavoFCEditorWidget::beautifyFloats("MFInt32", list); }), "us");
}

QtProperty *findRow(const QList<QtProperty *> &rows, const QString &toolTip)
{
    for (QtProperty *row : rows) {
        if (row->toolTip() == toolTip)
            return row;
        if (QtProperty *below = findRow(row->subProperties(), toolTip))
            return below;
    }
    return nullptr;
}

template <class Value>
void writing(kavoFCEditorWidget &editor, const char *typeName, const Value &value)
{
    QtProperty *row = findRow(editor.properties(), typeName);
    osg::ChangeList *changes = osg::Thread::getCurrentChangeList();
    changes->clearAll();
    const double time = microseconds([&] { editor.valueChanged(row, value); });
    if (changes->sizeChanged() == 0)
        qFatal("an edit of a row of type %s wrote nothing", typeName);
    changes->clearAll();
    BenchTable::figure(std::string("write back: ") + typeName, time, "us");
}

void writingBack(kavoFCEditorWidget &editor)
{
    const kavoNodePtr node = BenchScenes::makeTexturedNode();
    editor.setFC("node", osg::NodePtr(node));
    writing(editor, "SFBool", QVariant(false));
    writing(editor, "SFReal32", QVariant(0.25));
    writing(editor, "SFString", QVariant("another text"));
    writing(editor, "SFGLenum", 9729u);
    writing(editor, "SFColor4f", colorVal { 0.1f, 0.2f, 0.3f, 1 });
}

}

int main(int argc, char **argv)
{
    BenchHost::start(argc, argv);
    kavoFCEditorWidget editor(nullptr, "editor");
    BenchHost::show(editor);
    making(editor);
    beautifying();
    writingBack(editor);
    return 0;
}

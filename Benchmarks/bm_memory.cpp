// Measures the memory that stays allocated after a selection. The managers of enumerations and
// colours keep their rows on purpose. The variant manager must not keep any.

#include "BenchClock.h"
#include "BenchHost.h"
#include "BenchScenes.h"
#include "BenchTable.h"

#include <kavoCustomPropertyGLenum.h>
#include <kavoFCEditorWidget.h>

#include <OpenSG/OSGNode.h>

#include <malloc.h>
#include <memory>

namespace {

constexpr int selections = 10000;
constexpr int sample = 100; // the number of timed selections at the beginning and at the end

double heapBytes()
{
    return double(mallinfo2().uordblks);
}

int rowsOf(const QtAbstractPropertyManager *manager)
{
    return manager->properties().size();
}

template <class Manager> double rowsKept(const kavoFCEditorWidget &editor)
{
    return rowsOf(editor.findChild<Manager *>()) / double(selections);
}

void select(kavoFCEditorWidget &editor, const kavoNodePtr &node, int times)
{
    for (int i = 0; i < times; ++i)
        editor.setFC("node", osg::NodePtr(node));
    BenchHost::settle();
}

double timeOfSample(kavoFCEditorWidget &editor, const kavoNodePtr &node)
{
    return BenchClock::time([&] { select(editor, node, sample); }) / sample;
}

void report(const kavoFCEditorWidget &editor, double bytesOfOne, int variantRows)
{
    BenchTable::figure(
        "selections of a textured node: memory kept per selection", bytesOfOne, "bytes");
    BenchTable::figure("10,000 selections: enumeration rows kept per selection",
        rowsKept<QtGLenumPropertyManager>(editor), "rows");
    BenchTable::figure("10,000 selections: colour rows kept per selection",
        rowsKept<QtKavoColorPropertyManager>(editor), "rows");
    BenchTable::figure("10,000 selections: variant rows kept in all", variantRows, "rows");
}

}

int main(int argc, char **argv)
{
    BenchHost::start(argc, argv);
    auto editorOwner = std::make_unique<kavoFCEditorWidget>(nullptr, "editor");
    kavoFCEditorWidget &editor = *editorOwner;
    BenchHost::show(editor);
    const kavoNodePtr node = BenchScenes::makeTexturedNode();
    const double first = timeOfSample(editor, node);
    const QtAbstractPropertyManager *variants = editor.properties().first()->propertyManager();
    const int rowsBefore = rowsOf(variants);
    const double bytesBefore = heapBytes();
    select(editor, node, selections - 2 * sample);
    const double bytesOfOne = (heapBytes() - bytesBefore) / (selections - 2 * sample);
    const double last = timeOfSample(editor, node);
    report(editor, bytesOfOne, rowsOf(variants) - rowsBefore);
    BenchTable::figure("10,000 selections: each of the first 100", first, "ms");
    BenchTable::figure("10,000 selections: each of the last 100", last, "ms");
    BenchTable::figure("10,000 selections: destroy the editor",
        BenchClock::time([&] { editorOwner.reset(); }), "ms");
    return 0;
}

#include "NotInStock.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldContainerFactory.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

/// Compares every container type with what data/reflection.json says of it.
class tst_Reflection : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void typesThatAreLeftOutAreUnknown_data();
    void typesThatAreLeftOutAreUnknown();

    void typeIsAsDescribed_data() { addTypeRows(); }
    void typeIsAsDescribed();
    void descriptionsAreAsDescribed_data() { addTypeRows(); }
    void descriptionsAreAsDescribed();
    void fieldsAreAsDescribed_data() { addTypeRows(); }
    void fieldsAreAsDescribed();
    void defaultsAreAsDescribed_data() { addTypeRows(); }
    void defaultsAreAsDescribed();
    void fieldNamesAreUnique_data() { addTypeRows(); }
    void fieldNamesAreUnique();

    void everyTypeOfTheLibraryIsDescribed();

private:
    void addTypeRows();

    QList<QJsonObject> m_types;
};

namespace {

// Windows, clusters, volume rendering, display filters, text and interactive manipulators need
// what this library does not have: a window, a network, a renderer.
const QStringList leftOut { "AbstractText", "BalancedMultiWindow", "BinarySwapComposer",
    "ClusterWindow", "ColorDisplayFilter", "DVRAppearance", "DVRClipGeometry", "DVRClipObjects",
    "DVRGeometry", "DVRIsoShader", "DVRIsoSurface", "DVRLookupTable", "DVRMtexLUTShader",
    "DVRShader", "DVRSimpleLUTShader", "DVRSimpleShader", "DVRVolume", "DVRVolumeTexture",
    "DisplayCalibration", "DisplayFilter", "DisplayFilterForeground", "DistortionDisplayFilter",
    "GraphicStatisticsForeground", "ImageComposer", "Manipulator", "MoveManipulator",
    "MultiDisplayWindow", "ParallelComposer", "PipelineComposer", "ResolutionDisplayFilter",
    "RotateManipulator", "ScaleManipulator", "ScreenAlignedText", "SepiaComposer",
    "SharedFontStyle", "SharedFontStyleWrapper", "SimpleStatisticsForeground", "SortFirstWindow",
    "SortLastWindow", "StatisticsForeground" };

osg::FieldContainerType *find(const QJsonObject &facts)
{
    const QByteArray name = facts["type"].toString().toLatin1();
    return osg::FieldContainerFactory::the()->findType(name.constData());
}

QString kindOf(const osg::FieldContainerType &type)
{
    return type.isNode()      ? "node"
        : type.isNodeCore()   ? "core"
        : type.isAttachment() ? "attachment"
                              : "container";
}

QString textOf(const osg::Field &field)
{
    std::string text;
    return QString::fromStdString(field.getValueByStr(text));
}

/// A container of the type, or nothing for abstract ones.
class Sample
{
public:
    explicit Sample(const osg::FieldContainerType &type)
        : m_container(type.createFieldContainer())
    {
        osg::addRefCP(m_container);
    }
    ~Sample() { osg::subRefCP(m_container); }

    osg::Field *field(const QJsonObject &facts) const
    {
        return m_container ? m_container->getField(osg::UInt32(facts["id"].toInt())) : nullptr;
    }
    explicit operator bool() const { return m_container != osg::NullFC; }

private:
    osg::FieldContainerPtr m_container;
};

} // namespace

void tst_Reflection::initTestCase()
{
    osg::osgInit(0, nullptr);
}

void tst_Reflection::addTypeRows()
{
    if (m_types.isEmpty()) {
        QFile file(QFINDTESTDATA("data/reflection.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        for (const QJsonValue type : QJsonDocument::fromJson(file.readAll()).array()) {
            m_types.append(type.toObject());
        }
    }
    QTest::addColumn<QJsonObject>("facts");
    for (const QJsonObject &facts : m_types) {
        const QString name = facts["type"].toString();
        if (!leftOut.contains(name)) {
            QTest::newRow(qPrintable(name)) << facts;
        }
    }
}

void tst_Reflection::typesThatAreLeftOutAreUnknown_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : leftOut) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_Reflection::typesThatAreLeftOutAreUnknown()
{
    NOT_IN_STOCK("stock 1.8 has all types");
    QFETCH(QString, name);
    QVERIFY(!osg::FieldContainerFactory::the()->findType(qPrintable(name)));
}

void tst_Reflection::typeIsAsDescribed()
{
    QFETCH(QJsonObject, facts);
    const osg::FieldContainerType *type = find(facts);
    QVERIFY(type);
    QCOMPARE(QString(type->getCParentName()), facts["parent"].toString());
    QCOMPARE(QString(type->getParent() ? type->getParent()->getCName() : ""),
        facts["parent"].toString());
    QCOMPARE(QString(osg::FieldContainerFactory::the()->findGroupName(type->getGroupId())),
        facts["group"].toString());
    QCOMPARE(type->isAbstract(), facts["abstract"].toBool());
    QCOMPARE(kindOf(*type), facts["kind"].toString());
    QCOMPARE(int(type->getNumFieldDescs()), facts["fields"].toArray().size());
}

void tst_Reflection::descriptionsAreAsDescribed()
{
    QFETCH(QJsonObject, facts);
    for (const QJsonValue value : facts["fields"].toArray()) {
        const QJsonObject field = value.toObject();
        const osg::FieldDescription *description
            = find(facts)->getFieldDescription(osg::UInt32(field["id"].toInt()));
        QVERIFY(description);
        QCOMPARE(QString(description->getCName()), field["name"].toString());
        QCOMPARE(int(description->getFieldId()), field["id"].toInt());
        QCOMPARE(description->getFieldMask(), field["mask"].toString().toULongLong(nullptr, 16));
        QCOMPARE(description->isInternal(), field["internal"].toBool());
        QCOMPARE(QString(description->getFieldType().getCName()),
            field["declared_type"].toString(field["type"].toString()));
    }
}

void tst_Reflection::fieldsAreAsDescribed()
{
    QFETCH(QJsonObject, facts);
    const Sample sample(*find(facts));
    if (!sample) {
        QVERIFY(facts["abstract"].toBool());
        return;
    }
    for (const QJsonValue value : facts["fields"].toArray()) {
        const QJsonObject expected = value.toObject();
        const osg::Field *field = sample.field(expected);
        QVERIFY(field);
        QCOMPARE(QString(field->getType().getCName()), expected["type"].toString());
        QCOMPARE(QString(field->getContentType().getCName()), expected["content"].toString());
        QCOMPARE(
            field->getCardinality() == osg::FieldType::MULTI_FIELD, expected["multi"].toBool());
    }
}

void tst_Reflection::defaultsAreAsDescribed()
{
    QFETCH(QJsonObject, facts);
    const Sample sample(*find(facts));
    for (const QJsonValue value : facts["fields"].toArray()) {
        const QJsonObject expected = value.toObject();
        if (sample && expected.contains("default")) {
            QCOMPARE(textOf(*sample.field(expected)), expected["default"].toString());
        }
    }
}

void tst_Reflection::fieldNamesAreUnique()
{
    QFETCH(QJsonObject, facts);
    QSet<QString> names;
    for (osg::UInt32 id = 1; id <= find(facts)->getNumFieldDescs(); ++id) {
        names.insert(find(facts)->getFieldDescription(id)->getCName());
    }
    QCOMPARE(names.size(), int(find(facts)->getNumFieldDescs()));
}

void tst_Reflection::everyTypeOfTheLibraryIsDescribed()
{
    NOT_IN_STOCK("stock 1.8 has all types");
    osg::FieldContainerFactory *factory = osg::FieldContainerFactory::the();
    QCOMPARE(int(factory->getNumTypes()), m_types.size() - leftOut.size());
}

QTEST_APPLESS_MAIN(tst_Reflection)
#include "tst_reflection.moc"

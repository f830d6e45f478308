#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGRefPtr.h>

#include <QtTest>

#include <type_traits>
#include <utility>
#include <vector>

using namespace osg;

/// Every class has typed accessors for each of its fields. That they exist and what they take and
/// return shows when this is compiled; that they lead to the field of the name when it runs.
class tst_Accessors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }

    void accessorsLeadToTheField_data();
    void accessorsLeadToTheField();
};

namespace {

struct Accessor
{
    FieldContainerType &type;
    const char *name;
    Field *(*get)(FieldContainer &);
};

std::vector<Accessor> &accessors()
{
    static std::vector<Accessor> all;
    return all;
}

struct Listed
{
    explicit Listed(const Accessor &accessor) { accessors().push_back(accessor); }
};

template <class Class> Class &any();

template <class Actual, class Expected> constexpr bool are = std::is_same_v<Actual, Expected>;

#define FIELD_NUMBER(Class, Title, id)                                                             \
    static_assert(Class::Title##FieldId == id);                                                    \
    static_assert(Class::Title##FieldMask == TypeTraits<BitVector>::One << id);

#define FIELD_ACCESS(Class, Title, Prefix, FieldType, Value)                                       \
    static_assert(are<decltype(any<Class>().get##Prefix##Title()), FieldType *>);                  \
    static_assert(are<decltype(any<Class>().get##Title()), Value &>);                              \
    static_assert(are<decltype(any<const Class>().get##Title()), const Value &>);

#define FIELD_LISTED(Class, name, Title, Prefix)                                                   \
    const Listed list##Class##Title(                                                               \
        { Class::getClassType(), name, [](FieldContainer &c) -> Field * {                          \
             return static_cast<Class &>(c).get##Prefix##Title();                                  \
         } });

#define SINGLE_FIELD(Class, name, Title, FieldType, id)                                            \
    FIELD_NUMBER(Class, Title, id)                                                                 \
    FIELD_ACCESS(Class, Title, SF, FieldType, FieldType::StoredType)                               \
    static_assert(are<decltype(any<Class>().set##Title(any<FieldType::StoredType>())), void>);     \
    FIELD_LISTED(Class, name, Title, SF)

#define MULTI_FIELD(Class, name, Title, FieldType, id)                                             \
    FIELD_NUMBER(Class, Title, id)                                                                 \
    FIELD_ACCESS(Class, Title, MF, FieldType, FieldType)                                           \
    static_assert(are<decltype(any<Class>().get##Title(UInt32(0))), FieldType::StoredType &>);     \
    FIELD_LISTED(Class, name, Title, MF)

} // namespace

#include "accessors.inc"

namespace {

/// A container of the type or, if that is abstract, of one derived from it.
FieldContainerPtr sampleOf(const FieldContainerType &type)
{
    FieldContainerFactory &factory = *FieldContainerFactory::the();
    FieldContainerPtr sample = type.createFieldContainer();
    for (auto entry = factory.beginTypes(); !sample && entry != factory.endTypes(); ++entry) {
        if (entry->second->isDerivedFrom(type)) {
            sample = entry->second->createFieldContainer();
        }
    }
    return sample;
}

} // namespace

Q_DECLARE_METATYPE(const Accessor *)

void tst_Accessors::accessorsLeadToTheField_data()
{
    QTest::addColumn<const Accessor *>("accessor");
    for (const Accessor &accessor : accessors()) {
        QTest::addRow("%s::%s", accessor.type.getCName(), accessor.name) << &accessor;
    }
}

void tst_Accessors::accessorsLeadToTheField()
{
    QFETCH(const Accessor *, accessor);
    const RefPtr<FieldContainerPtr> sample(sampleOf(accessor->type));
    QVERIFY(sample.get() != NullFC);
    QCOMPARE(accessor->get(*sample.get()), sample->getField(accessor->name));
}

QTEST_APPLESS_MAIN(tst_Accessors)
#include "tst_accessors.moc"

#include <OpenSG/OSGFieldContainerType.h>

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGLog.h>

#include <algorithm>
#include <cstring>

OSG_BEGIN_NAMESPACE

namespace {

constexpr std::size_t maskBits = 64;

}

FieldContainerType::FieldContainerType(const Char8 *szName, const Char8 *szParentName,
    const Char8 *szGroupName, PrototypeCreateF fPrototypeCreate, InitContainerF fInitMethod,
    FieldDescription **pDesc, UInt32 uiDescByteCounter, bool bDescsAddable)
    : DataType(szName, szParentName)
    , _groupId(FieldContainerFactory::the()->registerGroup(szGroupName ? szGroupName : szName))
    , _createPrototype(fPrototypeCreate)
    , _ownDescriptions(pDesc, pDesc + uiDescByteCounter / sizeof(*pDesc))
    , _descriptionsAddable(bDescsAddable)
{
    FieldContainerFactory::the()->registerType(this);
    if (fInitMethod) {
        fInitMethod();
    }
}

// The prototype is destroyed while the code of its class is still loaded. At the end of the process
// it is not destroyed, because containers of other libraries may still use it.
FieldContainerType::~FieldContainerType()
{
    FieldContainerFactory::the()->unregisterType(this);
    if (GlobalSystemState == Running) {
        clearRefCP(_prototype);
    }
}

FieldDescription *FieldContainerType::getFieldDescription(UInt32 uiFieldId)
{
    return uiFieldId - 1 < _descriptions.size() ? _descriptions[uiFieldId - 1] : nullptr;
}

const FieldDescription *FieldContainerType::getFieldDescription(UInt32 uiFieldId) const
{
    return const_cast<FieldContainerType *>(this)->getFieldDescription(uiFieldId);
}

FieldDescription *FieldContainerType::findFieldDescription(const Char8 *szFieldName)
{
    const auto found = std::find_if(
        _descriptions.begin(), _descriptions.end(), [=](const FieldDescription *description) {
            return szFieldName && std::strcmp(description->getCName(), szFieldName) == 0;
        });
    return found != _descriptions.end() ? *found : nullptr;
}

const FieldDescription *FieldContainerType::findFieldDescription(const Char8 *szFieldName) const
{
    return const_cast<FieldContainerType *>(this)->findFieldDescription(szFieldName);
}

UInt32 FieldContainerType::addDescription(const FieldDescription &description)
{
    const UInt32 id = getNumFieldDescs() + 1;
    if (!_descriptionsAddable || id >= maskBits || findFieldDescription(description.getCName())) {
        return 0;
    }
    auto own = std::make_unique<FieldDescription>(description);
    own->setFieldId(id);
    own->setFieldMask(TypeTraits<BitVector>::One << id);
    _descriptions.push_back(own.get());
    _ownDescriptions.push_back(std::move(own));
    return id;
}

bool FieldContainerType::subDescription(UInt32 uiFieldId)
{
    const bool isLast = uiFieldId > 0 && uiFieldId == getNumFieldDescs();
    const bool isOwn = isLast && !_ownDescriptions.empty()
        && _ownDescriptions.back().get() == _descriptions.back();
    if (!_descriptionsAddable || !isOwn) {
        return false;
    }
    _descriptions.pop_back();
    _ownDescriptions.pop_back();
    return true;
}

bool FieldContainerType::setPrototype(FieldContainerPtr prototype)
{
    setRefdCP(_prototype, prototype);
    return true;
}

bool FieldContainerType::isDerivedFrom(const TypeBase &other) const
{
    return DataType::isDerivedFrom(other);
}

bool FieldContainerType::isDerivedFrom(const FieldContainerType &other) const
{
    const FieldContainerType *type = this;
    while (type && *type != other) {
        type = type->_parent;
    }
    return type;
}

FieldContainerPtr FieldContainerType::createFieldContainer() const
{
    return _prototype ? _prototype->shallowCopy() : FieldContainerPtr();
}

void FieldContainerType::dump(UInt32 uiIndent, const BitVector) const
{
    const std::string indent(uiIndent, ' ');
    osgLog() << indent << getName() << " : " << getParentName() << endLog;
    for (const FieldDescription *description : _descriptions) {
        osgLog() << indent << "    " << description->getFieldId() << ' ' << description->getName()
                 << ' ' << description->getFieldType().getName() << endLog;
    }
}

// A type that is initialized again while it looks for its parent is its own ancestor.
bool FieldContainerType::initialize()
{
    if (_initialized || _isInitializing) {
        return _initialized;
    }
    _isInitializing = true;
    const bool hasParent = !getCParentName() || inheritFromParent();
    _isInitializing = false;
    if (!hasParent) {
        SWARNING << getName() << " lacks its parent " << getParentName() << endLog;
        return false;
    }
    addOwnDescriptions();
    _initialized = true;
    if (_createPrototype) {
        setPrototype(_createPrototype());
    }
    _family = findFamily();
    return true;
}

bool FieldContainerType::inheritFromParent()
{
    const FieldContainerFactory &factory = *FieldContainerFactory::the();
    return inheritFrom(factory.findUninitializedType(getCParentName()))
        || inheritFrom(factory.findType(getCParentName()));
}

bool FieldContainerType::inheritFrom(FieldContainerType *parent)
{
    if (!parent || !FieldContainerFactory::the()->initializeType(parent)) {
        return false;
    }
    _parent = parent;
    _descriptions = parent->_descriptions;
    return true;
}

void FieldContainerType::addOwnDescriptions()
{
    for (const auto &description : _ownDescriptions) {
        _descriptions.push_back(description.get());
    }
    std::stable_sort(_descriptions.begin(), _descriptions.end(), FieldDescriptionPLT());
    if (_descriptions.size() >= maskBits) {
        SWARNING << getName() << " has more fields than a mask has bits" << endLog;
    }
}

OSG_END_NAMESPACE

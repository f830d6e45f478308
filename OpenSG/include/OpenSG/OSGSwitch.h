#pragma once

#include <OpenSG/OSGSwitchBase.h>

OSG_BEGIN_NAMESPACE

/// Shows the child with the index `choice`, all children or none.
class Switch : public SwitchBase
{
    typedef SwitchBase Inherited;

public:
    enum { ALL = -2, NONE = -1 };

protected:
    friend class FieldContainer;

    Switch() = default;
    Switch(const Switch &) = default;
    ~Switch() override = default;
};

OSG_END_NAMESPACE

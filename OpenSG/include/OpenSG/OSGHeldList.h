#pragma once

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGRefPtr.h>

#include <algorithm>
#include <iterator>
#include <vector>

OSG_BEGIN_NAMESPACE

/// Holds a reference to each container in a multi-field of handles. The field itself holds none.
template <class PtrT> class HeldList
{
public:
    /// References the containers that are in the field now and drops the previous references.
    void follow(const MField<PtrT> &field)
    {
        const auto [kept, added]
            = std::mismatch(_held.begin(), _held.end(), field.begin(), field.end());
        const std::vector<RefPtr<PtrT>> dropped(
            std::make_move_iterator(kept), std::make_move_iterator(_held.end()));
        _held.erase(kept, _held.end());
        for (auto handle = added; handle != field.end(); ++handle) {
            _held.emplace_back(*handle);
        }
    }

    template <class Function> void forEach(const Function &function) const
    {
        for (const RefPtr<PtrT> &held : _held) {
            function(held.get());
        }
    }

private:
    std::vector<RefPtr<PtrT>> _held;
};

OSG_END_NAMESPACE

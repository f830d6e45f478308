#pragma once

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGRefPtr.h>

#include <algorithm>
#include <iterator>
#include <vector>

OSG_BEGIN_NAMESPACE

/// One reference to each container of a multi-field of handles, which holds none itself.
template <class PtrT> class HeldList
{
public:
    /// References what the field holds now and drops what it held before.
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

// The one implementation behind every enumerator handed out: a list that was copied when it was asked for.
#pragma once

#include "com/guard.h"
#include "com/live_object.h"
#include "com/ole.h"

#include <algorithm>
#include <atomic>
#include <utility>
#include <vector>

namespace vellora::com {

inline void hand_out(const ComPtr<IConnectionPoint>& item, IConnectionPoint** out) {
    item.CopyTo(out);
}
inline void hand_out(const FORMATETC& item, FORMATETC* out) {
    *out = item;
}

struct Connection {
    DWORD cookie = 0;
    ComPtr<IUnknown> sink;
};
inline void hand_out(const Connection& item, CONNECTDATA* out) {
    out->dwCookie = item.cookie;
    item.sink.CopyTo(&out->pUnk);
}

/// `Interface` enumerates `Out` values, made from `Item` by hand_out.
template <class Interface, class Out, class Item>
class Enumerator final : public Interface {
public:
    static HRESULT create(std::vector<Item> items, Interface** out) {
        *out = new Enumerator(std::move(items), 0);
        return S_OK;
    }

    STDMETHODIMP QueryInterface(REFIID id, void** out) noexcept override {
        if (!out)
            return E_POINTER;
        *out = nullptr;
        if (id != __uuidof(Interface) && id != IID_IUnknown)
            return E_NOINTERFACE;
        *out = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() noexcept override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

    STDMETHODIMP Next(ULONG count, Out* out, ULONG* fetched) noexcept override {
        if (!out || (!fetched && count != 1))
            return E_POINTER;
        const std::size_t given = std::min<std::size_t>(count, items_.size() - position_);
        for (std::size_t i = 0; i < given; ++i)
            hand_out(items_[position_ + i], &out[i]);
        position_ += given;
        if (fetched)
            *fetched = static_cast<ULONG>(given);
        return given == count ? S_OK : S_FALSE;
    }
    STDMETHODIMP Skip(ULONG count) noexcept override {
        const std::size_t skipped = std::min<std::size_t>(count, items_.size() - position_);
        position_ += skipped;
        return skipped == count ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() noexcept override {
        position_ = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(Interface** out) noexcept override {
        return guard([&] {
            need(out);
            *out = new Enumerator(items_, position_);
        });
    }

private:
    Enumerator(std::vector<Item> items, std::size_t position)
        : items_(std::move(items)), position_(position) {}
    ~Enumerator() = default;

    LiveObject alive_;
    std::atomic<ULONG> references_ = 1;
    std::vector<Item> items_;
    std::size_t position_;
};

} // namespace vellora::com

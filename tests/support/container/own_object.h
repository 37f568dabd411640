// A COM object of the container with a reference count and identity of its own, offering one interface (and
// what that derives from).
#pragma once

#include <atomic>
#include <initializer_list>
#include <vector>
#include <windows.h>

#include <unknwn.h>

namespace vellora::test {

template <class Interface>
class OwnObject : public Interface {
public:
    /// The identifiers answered besides IUnknown's.
    explicit OwnObject(std::initializer_list<IID> identifiers) : identifiers_(identifiers) {}
    OwnObject(const OwnObject&) = delete;
    OwnObject& operator=(const OwnObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        if (!object)
            return E_POINTER;
        *object = answers(id) ? static_cast<Interface*>(this) : nullptr;
        if (!*object)
            return E_NOINTERFACE;
        this->AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

    /// For tests that look for references left behind.
    ULONG references() const noexcept { return references_; }

protected:
    virtual ~OwnObject() = default;
    /// Another identifier under which the same interface is asked for.
    void also_answer(REFIID id) { identifiers_.push_back(id); }

private:
    bool answers(REFIID id) const {
        if (IsEqualIID(id, IID_IUnknown))
            return true;
        for (const IID& known : identifiers_)
            if (IsEqualIID(id, known))
                return true;
        return false;
    }

    std::vector<IID> identifiers_;
    std::atomic<ULONG> references_{0};
};

} // namespace vellora::test

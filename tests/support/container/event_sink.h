// Receives the events of a control and keeps them, with their arguments, in the order they came. Handlers may
// be put in, and may change arguments that are passed by reference.
#pragma once

#include "support/container/call_log.h"
#include "support/container/own_object.h"
#include "support/container/variant.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <oaidl.h>
#include <wrl/client.h>

namespace vellora::test {

/// The arguments of an event being handled, counted from 0 in declared order.
class EventArguments {
public:
    explicit EventArguments(DISPPARAMS& parameters) : parameters_(parameters) {}
    std::size_t count() const noexcept { return parameters_.cArgs; }
    Variant get(std::size_t index) const;
    /// Converts to the argument's own type. False when it is not passed by reference.
    bool set(std::size_t index, const Variant& value);

private:
    VARIANT& at(std::size_t index) const { return parameters_.rgvarg[parameters_.cArgs - 1 - index]; }
    DISPPARAMS& parameters_;
};

class EventSink final : public OwnObject<IDispatch> {
public:
    using Handler = std::function<void(EventArguments&)>;

    EventSink();

    /// The event names come from the control's type information; unknown ones appear as their number.
    void learn_names(IUnknown* control);
    /// Also answers the identifier of the event interface, not only IDispatch.
    using OwnObject::also_answer;

    /// One line for each event: `DropDown(I4 0)`.
    const std::vector<std::string>& events() const noexcept { return events_; }
    std::vector<std::string> take();
    /// How often an event of that name came since the last take().
    int count(const std::string& name) const;

    /// Runs after the event is noted. An empty handler removes the one that was there.
    void on(const std::string& name, Handler handler);
    /// Sees every event, before the handler of its own name.
    void on_every(std::function<void(const std::string& name, EventArguments&)> observer);
    /// Takes all handlers out, whose captures may be about to end.
    void forget_handlers();
    /// Names that are not noted (mouse moves, say); their handlers still run.
    void ignore(const std::string& name);
    /// Also enters every event into the log of a site, which may prescribe an answer. The log has to outlive
    /// the connection.
    void report_to(CallLog& log) { log_ = &log; }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, OLECHAR** names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD kind, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* info, UINT* wrong_argument) override;

private:
    std::string name_of(DISPID id) const;

    std::map<DISPID, std::string> names_;
    std::vector<std::string> events_;
    std::vector<std::string> ignored_;
    std::map<std::string, Handler> handlers_;
    std::function<void(const std::string&, EventArguments&)> observer_;
    CallLog* log_ = nullptr;
};

/// The identifier of the control's own event interface; IID_NULL when it names none.
IID event_interface(IUnknown* control);

} // namespace vellora::test

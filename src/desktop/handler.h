// SPDX-License-Identifier: MIT
// Runs what Qt calls: slots, event overrides and event filters. No exception may pass through Qt, so
// a run-time error that a handler does not catch ends the program here.
#pragma once

#include "desktop/programend.h"

#include <QObject>

#include <type_traits>
#include <utility>

/// Returns the result of @p handler, or ends the program with a report if it throws a RunTimeError.
/// Wraps the body of an event override or event filter that can throw.
template<typename Handler>
decltype(auto) handle(Handler &&handler)
{
    try {
        return std::forward<Handler>(handler)();
    } catch (const RunTimeError &error) {
        endWithReport(error);
    }
}

/// Connects a signal to a member function that can throw. The member takes all arguments of the
/// signal or the first few, as with QObject::connect().
template<typename Sender, typename Signal, typename Receiver, typename... Arguments>
void connectHandler(const Sender *sender, Signal signal, Receiver *receiver,
                    void (Receiver::*handler)(Arguments...))
{
    QObject::connect(sender, signal, receiver, [=](Arguments... arguments) {
        handle([&] { (receiver->*handler)(arguments...); });
    });
}

/// Connects a signal to a function that can throw. It takes all arguments of the signal or none.
template<typename Sender, typename Source, typename... Arguments, typename Receiver,
         typename Handler>
requires(!std::is_member_pointer_v<Handler>) void connectHandler(
    const Sender *sender, void (Source::*signal)(Arguments...), Receiver *receiver, Handler handler)
{
    QObject::connect(sender, signal, receiver, [handler](Arguments... arguments) {
        handle([&] {
            if constexpr (std::is_invocable_v<Handler, Arguments...>)
                handler(arguments...);
            else
                handler();
        });
    });
}

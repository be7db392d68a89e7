// SPDX-License-Identifier: MIT
// Runs what Qt calls: slots, event overrides and event filters. No exception may pass through Qt, so
// a run-time error that a handler does not catch ends the program here.
#pragma once

#include "desktop/programend.h"

#include <QObject>

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

/// Connects a signal to a function without arguments that can throw.
template<typename Sender, typename Signal, typename Receiver, typename Handler>
void connectHandler(const Sender *sender, Signal signal, Receiver *receiver, Handler handler)
{
    QObject::connect(sender, signal, receiver, [handler] { handle(handler); });
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <coroutine>
#include <exception>

/// Thrown in a coroutine that waits for an object when the object is destroyed: the program is ending. Do not report
/// it, and touch nothing that the coroutine does not own.
class Abandoned : public std::exception {
public:
    [[nodiscard]] const char* what() const noexcept override { return "abandoned"; }
};

/// Waits for a signal of an object. The coroutine resumes while the signal is being emitted, so it must not delete the
/// object before control returns to the event loop.
template <class Object, class Signal> class SignalAwaiter {
public:
    SignalAwaiter(Object* object, Signal signal)
        : m_object(object)
        , m_signal(signal)
    {
    }

    // NOLINTBEGIN(readability-identifier-naming): names set by the language
    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> waiting)
    {
        m_emitted = QObject::connect(m_object, m_signal, m_object, [this, waiting] { resume(waiting, false); });
        m_destroyed = QObject::connect(m_object, &QObject::destroyed, m_object, [=, this] { resume(waiting, true); });
    }
    void await_resume() const
    {
        if (m_isAbandoned)
            throw Abandoned();
    }
    // NOLINTEND(readability-identifier-naming)

private:
    void resume(std::coroutine_handle<> waiting, bool isAbandoned)
    {
        m_isAbandoned = isAbandoned;
        QObject::disconnect(m_emitted);
        QObject::disconnect(m_destroyed);
        waiting.resume();
    }

    Object* m_object;
    Signal m_signal;
    QMetaObject::Connection m_emitted;
    QMetaObject::Connection m_destroyed;
    bool m_isAbandoned = false;
};

/// `co_await nextSignal(object, &Class::signal)` waits for the signal. Throws Abandoned if the object is destroyed
/// first.
template <class Object, class Signal> [[nodiscard]] auto nextSignal(Object* object, Signal signal)
{
    return SignalAwaiter<Object, Signal>(object, signal);
}

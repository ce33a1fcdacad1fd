// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <coroutine>
#include <exception>

/// Thrown where a coroutine waits for an object that is destroyed: the program is ending, and the coroutine with it.
/// Nobody is to be told, and the coroutine must not touch anything that it does not own.
class Abandoned : public std::exception {
public:
    [[nodiscard]] const char* what() const noexcept override { return "abandoned"; }
};

/// Waits for a signal of an object. Goes on while the signal is being emitted, so the object must not be deleted in the
/// same turn of the event loop.
template <class Object, class Signal> class Emission {
public:
    Emission(Object* object, Signal signal)
        : m_object(object)
        , m_signal(signal)
    {
    }

    // NOLINTBEGIN(readability-identifier-naming): the names of the language
    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> waiting)
    {
        m_emitted = QObject::connect(m_object, m_signal, m_object, [this, waiting] { goOn(waiting, false); });
        m_destroyed = QObject::connect(m_object, &QObject::destroyed, m_object, [=, this] { goOn(waiting, true); });
    }
    void await_resume() const
    {
        if (m_isAbandoned)
            throw Abandoned();
    }
    // NOLINTEND(readability-identifier-naming)

private:
    void goOn(std::coroutine_handle<> waiting, bool isAbandoned)
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

/// `co_await emissionOf(object, &Class::signal)` waits for the signal, and throws Abandoned when the object goes first.
template <class Object, class Signal> [[nodiscard]] auto emissionOf(Object* object, Signal signal)
{
    return Emission<Object, Signal>(object, signal);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppSettings.h"
#include "CommandClickableButton.h"
#include "Eventually.h"
#include "FakeWiFiClient.h"
#include "FixedClock.h"
#include "InOfficeCheck.h"
#include "LaunchAtLogin.h"
#include "LocationManager.h"
#include "LoginItem.h"
#include "Marking.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Notifier.h"
#include "Testing.h"
#include "Theme.h"
#include "ViewParts.h"
#include "ViewSettings.h"

#include <QApplication>
#include <QLabel>
#include <QTemporaryDir>

/// The shown button of a day.
inline CommandClickableButton& dayButton(const QWidget& root, int day)
{
    for (auto* button : root.findChildren<CommandClickableButton*>()) {
        if (button->isVisible() && button->text() == QString::number(day))
            return *button;
    }
    qFatal("Day %d is not shown", day);
}

inline QStringList shownTexts(const QWidget& root)
{
    QStringList texts;
    for (const auto* label : root.findChildren<QLabel*>()) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts;
}

template <class Control> Control& named(const QWidget& root, const char* name)
{
    return *root.findChild<Control*>(QString::fromLatin1(name));
}

inline QPoint inWindow(const QWidget& widget)
{
    return widget.mapTo(widget.window(), widget.rect().center());
}

// Pointer and keys go through the window, as those of a person do: only what is shown can be hit.

inline void click(const QWidget& target, Qt::KeyboardModifiers held = {}, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(target.window()->windowHandle(), button, held, inWindow(target));
}

inline void moveTo(const QWidget& root, QPoint place)
{
    // The pointer may be there already, from a window that has gone: that would be no move.
    for (const QPoint step : {place + QPoint(1, 1), place})
        QTest::mouseMove(root.window()->windowHandle(), step);
}

inline void press(const QWidget& root, Qt::Key key, Qt::KeyboardModifiers held = {})
{
    QTest::keyClick(root.window()->windowHandle(), key, held);
}

class MockNotifier : public Notifier {
public:
    MOCK_METHOD(void, post, (const Notification&), (override));
};

class FakeLoginItem : public LoginItem {
public:
    [[nodiscard]] bool isEnabled() const override { return enabled; }
    void registerItem() override
    {
        if (isBroken)
            throw PlatformError(u"no room"_s);
        enabled = true;
    }
    void unregisterItem() override { enabled = false; }

    bool enabled = false;
    bool isBroken = false;
};

/// What the calendar views work on: a real store, on the morning of Friday 20 November 2026.
class ViewTest : public testing::Test {
protected:
    ViewTest()
    {
        settings->daysPerWeekGoals = {Goal::create(u"2"_s, u"not fired"_s), Goal::create(u"4"_s, u"ideal"_s)};
        context.insert(settings);
    }
    ~ViewTest() override { wear(ColorScheme::Light); }

    /// The stored month; a new one where there is none.
    [[nodiscard]] std::shared_ptr<Month> month(int year, int number)
    {
        auto found = context.fetchMonths(year, number);
        if (found.isEmpty()) {
            found.append(std::make_shared<Month>(year, number));
            context.insert(found.first());
            context.save();
        }
        return found.first();
    }

    void setRadio(bool isOn, int permission)
    {
        wifiClient.interface->powerOn = isOn;
        Q_EMIT wifiClient.powerStateDidChange(u"wlan0"_s);
        authorization.change(AuthorizationStatus(permission));
        QCoreApplication::processEvents();
    }

    static void show(QWidget& window)
    {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    static void wear(ColorScheme scheme)
    {
        QApplication::setPalette(paletteFor(scheme));
        QApplication::processEvents();
    }

    const QTemporaryDir folder{inMemory};
    const QString path = folder.filePath(u"Pellory.store"_s);
    ModelContainer container{{.name = {}, .path = path}};
    ModelContext& context = container.mainContext();
    const std::shared_ptr<AppSettings> settings = std::make_shared<AppSettings>();
    QSettings stored{folder.filePath(u"views.ini"_s), QSettings::IniFormat};
    ViewSettings viewSettings{stored};
    FixedClock clock;
    testing::NiceMock<FakeWiFiClient> wifiClient;
    testing::NiceMock<FakeAuthorization> authorization;
    MockSystemSettings systemSettings;
    LocationManagerKey locationManager{authorization, systemSettings};
    testing::NiceMock<MockNotifier> notifier;
    InOfficeCheck check{{container, *settings, wifiClient, notifier, clock}};
    FakeLoginItem loginItem;
    LaunchAtLogin launchAtLogin{loginItem};
    const ViewParts parts{context, *settings, viewSettings, clock, wifiClient, locationManager, check, launchAtLogin};
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;
struct ViewParts;

/// The contents of the steps of the first run.
namespace welcome {

/// What Pellory is, with a month to try it on. That month is never stored.
[[nodiscard]] QWidget* makeIntroduction(const ViewParts& parts);
[[nodiscard]] QWidget* makeGoals(const ViewParts& parts);
/// Notifications and the launch at login.
[[nodiscard]] QWidget* makeGeneral(const ViewParts& parts);
[[nodiscard]] QWidget* makeWiFi(const ViewParts& parts);
/// What has been set.
[[nodiscard]] QWidget* makeSummary(const ViewParts& parts);

} // namespace welcome

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class AppSettings;
class Clock;
class ModelContext;
class ViewSettings;

/// What the calendar views work on. They borrow all of it; it outlives them.
struct ViewParts {
    ModelContext& context;
    AppSettings& settings;
    ViewSettings& viewSettings;
    Clock& clock;
};

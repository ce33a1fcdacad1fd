// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppLook.h"

#include "StillStyle.h"

#include <QApplication>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto lastSchemeIsDark = "appearanceLastSchemeIsDark"_L1;
constexpr auto lastContrastIsHigh = "appearanceLastContrastIsHigh"_L1;

Look currentLook()
{
    return lookOf(QApplication::palette());
}

void reduceMotion(bool isReduced)
{
    const bool wasReduced = qobject_cast<StillStyle*>(QApplication::style()) != nullptr;
    if (isReduced == wasReduced)
        return;
    // The first style was set before there was an application. The toolkit destroys only a style that belongs to it.
    QApplication::style()->setParent(qApp);
    QApplication::setStyle(isReduced ? new StillStyle : QStyleFactory::create(u"Fusion"_s));
}

} // namespace

AppLook::AppLook(QSettings& settings)
    : m_settings(settings)
    , m_desktopContrast(currentLook().contrast)
{
    const bool isDark = settings.value(lastSchemeIsDark, currentLook().scheme == ColorScheme::Dark).toBool();
    const bool isHigh = settings.value(lastContrastIsHigh).toBool() || m_desktopContrast == Contrast::High;
    QApplication::setPalette(
        paletteFor({isDark ? ColorScheme::Dark : ColorScheme::Light, isHigh ? Contrast::High : Contrast::Normal}));
}

void AppLook::follow(Appearance& appearance)
{
    connect(&appearance, &Appearance::colorSchemeReported, this, [this](ColorScheme scheme) {
        change({scheme, currentLook().contrast});
    });
    connect(&appearance, &Appearance::contrastReported, this, [this](Contrast contrast) {
        change({currentLook().scheme, std::max(contrast, m_desktopContrast)});
    });
    connect(&appearance, &Appearance::reducedMotionReported, this, reduceMotion);
}

void AppLook::change(const Look& look)
{
    if (look == currentLook())
        return;
    QApplication::setPalette(paletteFor(look));
    m_settings.setValue(lastSchemeIsDark, look.scheme == ColorScheme::Dark);
    m_settings.setValue(lastContrastIsHigh, look.contrast == Contrast::High);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "SegmentedTabs.h"

#include "Fonts.h"
#include "SymbolLabel.h"
#include "Theme.h"

#include <QPainter>
#include <QWheelEvent>

namespace {

constexpr qreal segmentRadius = 7.0;
constexpr int segmentGap = 3;
constexpr int leastSide = segmentGap + 5;
constexpr int usualTabSymbolSize = 16;

QFont selectedFont(const QWidget& tabs)
{
    QFont font = tabs.font();
    font.setWeight(QFont::Bold);
    return font;
}

} // namespace

SegmentedTabs::SegmentedTabs(QWidget* parent)
    : QTabBar(parent)
{
    setFont(fonts::body(font()));
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void SegmentedTabs::addTab(Symbol symbol, const QString& text)
{
    const int index = addTab(QString());
    setTabData(index, static_cast<int>(symbol));
    setTabText(index, text); // which also measures the tab
}

SymbolLabel SegmentedTabs::label(int index) const
{
    const QVariant symbol = tabData(index);
    return {tabText(index), symbol.isValid() ? std::optional(Symbol(symbol.toInt())) : std::nullopt,
            fonts::grown(usualTabSymbolSize, font())};
}

bool SegmentedTabs::hasRoomForSymbols() const
{
    const QFontMetrics metrics(selectedFont(*this));
    for (int i = 0; i < count(); ++i) {
        if (label(i).size(metrics).width() + 2 * leastSide > tabRect(i).width())
            return false;
    }
    return true;
}

QSize SegmentedTabs::minimumTabSizeHint(int index) const
{
    const int text = QFontMetrics(selectedFont(*this)).horizontalAdvance(tabText(index));
    return {text + 2 * leastSide, tabSizeHint(index).height()};
}

QSize SegmentedTabs::tabSizeHint(int index) const
{
    // A symbol brings some air of its own.
    const int side = tabData(index).isValid() ? 10 : 22;
    return label(index).size(QFontMetrics(selectedFont(*this))).grownBy({side, 8, side, 8});
}

void SegmentedTabs::focusInEvent(QFocusEvent* event)
{
    m_focusVisible.update(event->reason());
    QTabBar::focusInEvent(event);
}

void SegmentedTabs::keyPressEvent(QKeyEvent* event)
{
    m_focusVisible.show();
    QTabBar::keyPressEvent(event);
}

void SegmentedTabs::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.trough);
    painter.drawRoundedRect(rect(), segmentRadius + segmentGap, segmentRadius + segmentGap);
    const bool hasSymbols = hasRoomForSymbols();
    for (int i = 0; i < count(); ++i) {
        const QRectF segment =
            QRectF(tabRect(i)).marginsRemoved(QMarginsF(segmentGap, segmentGap, segmentGap, segmentGap));
        const bool isCurrent = i == currentIndex();
        if (isCurrent) {
            painter.setPen(hasFocus() && m_focusVisible ? QPen(theme.accent, 2.0) : QPen(theme.border, 1.0));
            painter.setBrush(theme.selected);
            painter.drawRoundedRect(segment, segmentRadius, segmentRadius);
        }
        painter.setPen(isCurrent ? theme.text : theme.dimText);
        painter.setFont(isCurrent ? selectedFont(*this) : font());
        SymbolLabel shown = label(i);
        if (!hasSymbols)
            shown.symbol.reset();
        shown.paint(painter, segment.toRect(), layoutDirection());
    }
}

void SegmentedTabs::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "SideTabs.h"

#include "Fonts.h"
#include "Labels.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>
#include <QWheelEvent>

namespace {

constexpr int usualSideSymbolSize = 18;
constexpr int sideSymbolGap = 10;
constexpr QMargins sideTabPadding(10, 9, 14, 9);

} // namespace

SideTabs::SideTabs(QWidget* parent)
    : QTabBar(parent)
{
    setFont(fonts::body(font()));
    setShape(QTabBar::RoundedWest);
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SideTabs::addTab(Symbol symbol, const QString& name)
{
    const int index = QTabBar::addTab(name);
    setTabData(index, static_cast<int>(symbol));
}

void SideTabs::setNamesShown(bool shown)
{
    if (std::exchange(m_namesShown, shown) == shown)
        return;
    for (int i = 0; i < count(); ++i) {
        setTabToolTip(i, shown ? QString() : labels::help(tabText(i)));
        setTabText(i, tabText(i)); // which also measures the tab
    }
}

int SideTabs::symbolSize() const
{
    return fonts::grown(usualSideSymbolSize, font());
}

int SideTabs::widthWithNames() const
{
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = qMax(widest, fontMetrics().size(Qt::TextShowMnemonic, tabText(i)).width());
    return widest + symbolSize() + sideSymbolGap + sideTabPadding.left() + sideTabPadding.right();
}

QSize SideTabs::tabSizeHint(int /*index*/) const
{
    const int height = qMax(fontMetrics().height(), symbolSize());
    const int padding = sideTabPadding.top() + sideTabPadding.bottom();
    return {m_namesShown ? widthWithNames() : symbolSize() + 2 * sideTabPadding.left(), height + padding};
}

void SideTabs::focusInEvent(QFocusEvent* event)
{
    m_focusVisible.update(event->reason());
    QTabBar::focusInEvent(event);
}

void SideTabs::keyPressEvent(QKeyEvent* event)
{
    m_focusVisible.show();
    update();
    const int last = count() - 1;
    switch (event->key()) {
    case Qt::Key_Up:
        return setCurrentIndex(qMax(0, currentIndex() - 1));
    case Qt::Key_Down:
        return setCurrentIndex(qMin(last, currentIndex() + 1));
    case Qt::Key_Home:
        return setCurrentIndex(0);
    case Qt::Key_End:
        return setCurrentIndex(last);
    default:
        event->ignore();
    }
}

void SideTabs::paintEvent(QPaintEvent* /*event*/)
{
    constexpr qreal radius = 8.0;
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < count(); ++i) {
        const QRect tab = tabRect(i).adjusted(0, 1, 0, -1);
        const bool isCurrent = i == currentIndex();
        if (isCurrent) {
            painter.setPen(theme.border);
            painter.setBrush(theme.trough);
            painter.drawRoundedRect(QRectF(tab).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
            m_focusVisible.drawRing(painter, *this, QRectF(tab).adjusted(1, 1, -1, -1), radius);
        }
        painter.setPen(isCurrent ? theme.text : theme.dimText);
        paintTab(painter, i, tab);
    }
}

void SideTabs::paintTab(QPainter& painter, int index, const QRect& area) const
{
    const QRect whole = area.adjusted(sideTabPadding.left(), 0, -sideTabPadding.left(), 0);
    const QSize size(symbolSize(), symbolSize());
    const QRect symbol = QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter, size, whole);
    drawSymbol(painter, symbol, Symbol(tabData(index).toInt()), painter.pen().color());
    if (!m_namesShown)
        return;
    const QRect name =
        QStyle::visualRect(layoutDirection(), whole, whole.adjusted(size.width() + sideSymbolGap, 0, 0, 0));
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter;
    painter.drawText(name, static_cast<int>(alignment) | Qt::TextShowMnemonic, tabText(index));
}

void SideTabs::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "WeekdayButtons.h"

#include "Accessibility.h"
#include "FlatButton.h"
#include "Fonts.h"
#include "Outline.h"
#include "Theme.h"

#include <QBoxLayout>
#include <QLocale>
#include <QPainter>
#include <QSignalBlocker>

namespace {

constexpr int daysOfWeek = 7;
constexpr QMargins dayPadding(8, 6, 8, 6);
constexpr qreal dayRadius = 7.0;

class WeekdayButton : public FlatButton {
public:
    explicit WeekdayButton(int day)
    {
        setFont(fonts::body(font()));
        setCheckable(true);
        setText(QLocale().standaloneDayName(day, QLocale::ShortFormat));
        setAccessibleName(QLocale().standaloneDayName(day, QLocale::LongFormat));
        setToolTip(accessibleName());
    }

    // All are as wide as the widest.
    [[nodiscard]] QSize sizeHint() const override
    {
        int widest = 0;
        for (int day = 1; day <= daysOfWeek; ++day) {
            const QString name = QLocale().standaloneDayName(day, QLocale::ShortFormat);
            widest = qMax(widest, fontMetrics().horizontalAdvance(name));
        }
        return QSize(widest, fontMetrics().height()).grownBy(dayPadding);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const Theme& theme = themeFor(palette());
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        const QColor fill = isEnabled() ? theme.fill : theme.disabledText;
        const QColor words = isEnabled() ? theme.text : theme.disabledText;
        painter.setPen(isChecked() ? fill : theme.controlBorder);
        painter.setBrush(isChecked() ? fill : theme.card);
        painter.drawRoundedRect(area, dayRadius, dayRadius);
        if (isChecked())
            drawOutline(painter, rect(), dayRadius, theme);
        painter.setPen(isChecked() ? readableTextOn(fill) : words);
        painter.drawText(rect(), Qt::AlignCenter, text());
        const qreal inset = isChecked() ? 3.0 : 1.0;
        paintRing(painter, QRectF(rect()).adjusted(inset, inset, -inset, -inset), dayRadius - inset,
                  isChecked() ? QColor(Qt::white) : theme.accent);
    }
};

} // namespace

WeekdayButtons::WeekdayButtons(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::Grouping); // or readers would not say the name
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(4);
    for (int i = 0; i < daysOfWeek; ++i) {
        const int day = (static_cast<int>(QLocale().firstDayOfWeek()) - 1 + i) % daysOfWeek + 1;
        auto* button = new WeekdayButton(day);
        m_buttons.at(static_cast<std::size_t>(day - 1)) = button;
        row->addWidget(button);
        // Not clicked(), which assistive technology does not emit.
        connect(button, &QAbstractButton::toggled, this, &WeekdayButtons::chosen);
    }
    row->addStretch();
}

Weekdays WeekdayButtons::weekdays() const
{
    Weekdays chosen;
    for (int day = 1; const QAbstractButton* button : m_buttons)
        chosen = chosen.with(day++, button->isChecked());
    return chosen;
}

void WeekdayButtons::setWeekdays(Weekdays weekdays)
{
    const QSignalBlocker blocker(this);
    for (int day = 1; QAbstractButton * button : m_buttons)
        button->setChecked(weekdays.contains(day++));
}

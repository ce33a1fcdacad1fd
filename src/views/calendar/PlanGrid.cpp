// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlanGrid.h"

#include "DayCellPainter.h"
#include "FlatButton.h"
#include "Fonts.h"
#include "Labels.h"
#include "Theme.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int daysOfRow = 7;
// Above the faces of the days.
constexpr int nameInset = 6;
constexpr int nameGap = 4;
// Of days that cannot be pressed.
constexpr qreal closedOpacity = 0.4;
constexpr qreal closedOpacityInHighContrast = 0.75;

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

QString shortName(int dayOfWeek)
{
    return QLocale().standaloneDayName(dayOfWeek, QLocale::ShortFormat);
}

QString freeDaysName()
{
    //: The number of days in a week that can still be planned, as the head of a narrow column.
    return PlanGrid::tr("Free");
}

QLabel* makeColumnLabel(const QString& text)
{
    auto* label = labels::singleLine(labels::dim(text));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

class PlanDayButton : public FlatButton {
public:
    PlanDayButton()
    {
        setFont(fonts::body(font()));
        setFocusPolicy(Qt::NoFocus);
    }

    void setCell(const PlanGrid::Cell& cell)
    {
        m_cell = cell;
        setEnabled(cell.canBePressed);
        setCursor(cell.canBePressed ? Qt::PointingHandCursor : Qt::ArrowCursor);
        setAccessibleName(cell.text);
        setToolTip(labels::help(cell.text));
        update();
    }

    [[nodiscard]] const PlanGrid::Cell& cell() const { return m_cell; }
    [[nodiscard]] QSize sizeHint() const override { return DayCellPainter::sizeHint(fontMetrics()); }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (isArrow(event->key()))
            event->ignore(); // the grid moves the focus
        else
            FlatButton::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent* /*event*/) override
    {
        const Theme& theme = themeFor(palette());
        QPainter painter(this);
        const bool isHighContrast = theme.outline.alpha() > 0;
        const qreal closed = isHighContrast ? closedOpacityInHighContrast : closedOpacity;
        painter.setOpacity(m_cell.canBePressed ? 1.0 : closed);
        const DayCellPainter cell(rect(), fontMetrics(), layoutDirection());
        cell.paint(painter,
                   {.number = QString::number(m_cell.date.day()),
                    .tint = dayColor(theme, m_cell.day),
                    .state = m_cell.day.state,
                    .isDayOff = m_cell.isDayOff,
                    .isToday = m_cell.isToday,
                    .isDown = isDown(),
                    .isFocused = false},
                   theme);
        constexpr qreal ringOutset = 4.0;
        constexpr qreal ringRadius = 12.0;
        paintRing(painter, QRectF(cell.face()).marginsAdded(QMarginsF(ringOutset, ringOutset, ringOutset, ringOutset)),
                  ringRadius, theme.accent);
    }

private:
    PlanGrid::Cell m_cell;
};

PlanGrid::PlanGrid(QWidget* parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins({});
    m_grid->setSpacing(0);
}

void PlanGrid::setWeeks(const QList<Week>& weeks)
{
    if (m_freeDays.size() != weeks.size())
        build(weeks);
    for (qsizetype row = 0; row < weeks.size(); ++row) {
        const Week& week = weeks.at(row);
        for (qsizetype day = 0; day < daysOfRow; ++day)
            m_days.at(row * daysOfRow + day)->setCell(week.cells.at(day));
        m_freeDays.at(row)->setText(week.freeDays > 0 ? QString::number(week.freeDays) : QString());
        m_freeDays.at(row)->setAccessibleName(tr("%1 free", "days of a week").arg(week.freeDays));
    }
    chooseTabStop();
}

void PlanGrid::build(const QList<Week>& weeks)
{
    qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
    m_days.clear();
    m_freeDays.clear();
    if (weeks.isEmpty())
        return;
    makeRoomForHeads();
    for (int row = 1; const Week& week : weeks) {
        if (week.named.isValid())
            addMonthName(week.named, row - 1, static_cast<int>(week.cells.first().date.daysTo(week.named)));
        for (int column = 0; column < daysOfRow; ++column) {
            auto* day = new PlanDayButton;
            m_days.append(day);
            m_grid->addWidget(day, row, column, Qt::AlignCenter);
            connect(day, &QAbstractButton::clicked, this, [this, day] { Q_EMIT pressed(day->cell().date); });
        }
        m_freeDays.append(makeColumnLabel({}));
        m_grid->addWidget(m_freeDays.last(), row, daysOfRow);
        row += 2; // with one for the name of a month
    }
}

QList<PlanGrid::Column> PlanGrid::columns() const
{
    QList<Column> columns;
    if (m_freeDays.isEmpty())
        return columns;
    for (const PlanDayButton* day : m_days.first(daysOfRow))
        columns.append({shortName(day->cell().date.dayOfWeek()), day->geometry().center().x()});
    columns.append({freeDaysName(), m_freeDays.first()->geometry().center().x()});
    return columns;
}

// The columns of the days are of one width.
void PlanGrid::makeRoomForHeads()
{
    const QFontMetrics metrics(fonts::body(font()));
    int widest = 0;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day)
        widest = qMax(widest, metrics.horizontalAdvance(shortName(day)));
    for (int column = 0; column < daysOfRow; ++column) {
        m_grid->setColumnMinimumWidth(column, widest);
        m_grid->setColumnStretch(column, 1);
    }
    m_grid->setColumnMinimumWidth(daysOfRow, metrics.horizontalAdvance(freeDaysName()));
}

void PlanGrid::addMonthName(QDate date, int row, int column)
{
    auto* name = labels::dim(QLocale().standaloneMonthName(date.month()));
    name->setFont(fonts::caption(font()));
    name->setWordWrap(false);
    name->setContentsMargins(nameInset, nameGap, 0, 0);
    m_grid->addWidget(name, row, column, 1, daysOfRow + 1 - column);
}

void PlanGrid::chooseTabStop()
{
    const auto isStop = [](const PlanDayButton* day) { return day->focusPolicy() != Qt::NoFocus && day->isEnabled(); };
    if (std::ranges::any_of(m_days, isStop))
        return;
    const auto first = std::ranges::find_if(m_days, &PlanDayButton::isEnabled);
    if (first != m_days.end())
        (*first)->setFocusPolicy(Qt::TabFocus);
}

void PlanGrid::keyPressEvent(QKeyEvent* event)
{
    auto* const focused = dynamic_cast<PlanDayButton*>(focusWidget());
    if (focused == nullptr || !isArrow(event->key()))
        return QWidget::keyPressEvent(event);
    const bool isBack = event->key() == Qt::Key_Up || event->key() == (isLeftToRight() ? Qt::Key_Left : Qt::Key_Right);
    const bool isRow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    PlanDayButton* next = nextTo(m_days.indexOf(focused), (isBack ? -1 : 1) * (isRow ? daysOfRow : 1));
    if (next == nullptr)
        return;
    focused->setFocusPolicy(Qt::NoFocus);
    next->setFocusPolicy(Qt::TabFocus);
    next->setFocus(Qt::TabFocusReason);
}

PlanDayButton* PlanGrid::nextTo(qsizetype place, qsizetype step) const
{
    do
        place += step;
    while (place >= 0 && place < m_days.size() && !m_days.at(place)->isEnabled());
    return place >= 0 && place < m_days.size() ? m_days.at(place) : nullptr;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SpokenGroup.h"

#include <QList>

/// The figures of the quarters and of the year, as a table. It only displays.
class YearFigures : public SpokenGroup {
    Q_OBJECT

public:
    struct Row {
        QString name;
        qint64 inOffice = 0;
        qint64 workdays = 0;
        /// In days per week.
        double average = 0.0;

        bool operator==(const Row&) const = default;
    };

    explicit YearFigures(QWidget* parent = nullptr);

    /// The last row is that of the year. There are always as many.
    void setRows(const QList<Row>& rows);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void speak();
    [[nodiscard]] int rowHeight() const;
    void paintRow(QPainter& painter, int row, const QStringList& texts) const;

    QList<Row> m_rows;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "MessageBoxAlerts.h"
#include "Testing.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>

TEST(MessageBoxAlertsTest, onlyTheFirstButtonConfirms)
{
    const std::pair<QString, Qt::Key> rows[]{
        {u"Delete"_s, {}}, {u"Cancel"_s, {}}, {{}, Qt::Key_Return}, {{}, Qt::Key_Escape}};
    for (const auto& [pushed, key] : rows) {
        QTimer::singleShot(0, [pushed = pushed, key = key] {
            auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
            EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
            EXPECT_EQ(box.text() + box.informativeText(), u"Delete?All of it."_s);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            const auto buttons = box.buttons();
            if (pushed.isEmpty())
                QTest::keyClick(&box, key);
            else
                (*std::ranges::find(buttons, pushed, &QAbstractButton::text))->click();
        });
        EXPECT_EQ(MessageBoxAlerts().confirmWarning(u"Delete?"_s, u"All of it."_s, u"Delete"_s, u"Cancel"_s),
                  pushed == u"Delete"_s);
    }
}

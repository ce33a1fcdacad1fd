// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

class AlertCard;
class BackupAlert;
class CalendarPage;
class LazyStack;
class LocationAlert;
class Month;
class Popover;
class QDate;
class QVBoxLayout;
class SaveAlert;
class SegmentedTabs;
class TrackingStatus;
class UndoLine;

struct BackupFile;
struct DaySpan;
struct ViewParts;
struct YearMonth;
enum class LostStore;
enum class WindowId;

/// The contents of the main window: header, alerts, and the month, the quarter or the year.
class ContentView : public QWidget {
    Q_OBJECT

public:
    explicit ContentView(const ViewParts& parts, QWidget* parent = nullptr);

    /// Turns the current tab to a day and gives it the focus.
    void showDay(QDate date);
    void showToday();
    /// Shows a card that offers to finish the first run, until it is complete.
    void offerSetUp();
    /// Shows a card that offers a backup in the place of a store that was lost.
    void offerBackup(LostStore how, const BackupFile& backup);

Q_SIGNALS:
    /// A button of the toolbar was pressed.
    void windowRequested(WindowId id);
    /// A record of these days is to be saved.
    void recordRequested(const DaySpan& span);
    /// The first run is to be finished.
    void setUpRequested();
    /// The usual week is to be chosen in the settings.
    void usualWeekRequested();
    void quitRequested();
    /// The file on disk is to be used instead of what is shown.
    void reloadRequested();
    /// The backup that was offered is not wanted.
    void backupDeclined();
    /// The contents have been drawn for the first time.
    void painted();

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QWidget* makeHeader();
    [[nodiscard]] QWidget* makeIndicator();
    [[nodiscard]] QWidget* makeToolbar();
    void addShortcuts();
    void alertIfNeeded();
    void alertIfUnsaved();
    void alertIfNotBackedUp();
    void showTab(int index);
    void focusTab(int index);
    void scrollToFocus();
    [[nodiscard]] CalendarPage& page() const;
    template <class Calendar> [[nodiscard]] QWidget* makePage();
    [[nodiscard]] QWidget* makeYearPage();
    [[nodiscard]] QWidget* addPage(CalendarPage* page);
    void openMonth(const YearMonth& month, Qt::FocusReason reason);
    void openDetails(const std::shared_ptr<Month>& month, qsizetype index, QWidget* cell);
    void popUp(Popover& popover);

    const ViewParts& m_parts;
    TrackingStatus* m_status;
    QVBoxLayout* m_column;
    LocationAlert* m_alert = nullptr;
    SaveAlert* m_saveAlert = nullptr;
    AlertCard* m_setUpAlert = nullptr;
    BackupAlert* m_backupAlert = nullptr;
    SegmentedTabs* m_tabs;
    LazyStack* m_pages;
    UndoLine* m_undoLine;
    bool m_painted = false;
};

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutView</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A calendar of your days in the office</source>
        <translation>Ein Kalender Ihrer Tage im Büro</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes without any warranty.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder später. Ohne jede Gewährleistung.</translation>
    </message>
</context>
<context>
    <name>Absence</name>
    <message>
        <source>Sick</source>
        <translation>Krank</translation>
    </message>
    <message>
        <source>Business Trip</source>
        <translation>Dienstreise</translation>
    </message>
    <message>
        <source>Client Visit</source>
        <translation>Kundenbesuch</translation>
    </message>
    <message>
        <source>Training</source>
        <translation>Schulung</translation>
    </message>
</context>
<context>
    <name>AbsenceKindsCard</name>
    <message>
        <source>Kinds of Absence</source>
        <translation>Arten der Abwesenheit</translation>
    </message>
    <message>
        <source>The menu of a day gives a kind to a day out of office. Choose how the days of each kind count.</source>
        <translation>Das Menü eines Tages gibt einem Tag außerhalb des Büros eine Art. Wählen Sie, wie die Tage jeder Art zählen.</translation>
    </message>
    <message>
        <source>New kind of absence</source>
        <translation>Neue Art der Abwesenheit</translation>
    </message>
    <message>
        <source>If you remove a kind, its days stay out of office, without a kind.</source>
        <translation>Wenn Sie eine Art entfernen, bleiben ihre Tage „Nicht im Büro“, dann ohne Art.</translation>
    </message>
    <message>
        <source>Add Kind of Absence</source>
        <translation>Art der Abwesenheit hinzufügen</translation>
    </message>
    <message>
        <source>How %1 counts</source>
        <comment>kind of absence</comment>
        <translation>Wie „%1“ zählt</translation>
    </message>
    <message>
        <source>Out of Office</source>
        <translation>Nicht im Büro</translation>
    </message>
    <message>
        <source>In the Office</source>
        <translation>Im Büro</translation>
    </message>
    <message>
        <source>Not a Workday</source>
        <translation>Kein Arbeitstag</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <comment>kind of absence</comment>
        <translation>„%1“ entfernen</translation>
    </message>
    <message>
        <source>Type a name for the kind of absence.</source>
        <translation>Geben Sie einen Namen für die Art der Abwesenheit ein.</translation>
    </message>
    <message>
        <source>There is a kind of this name already.</source>
        <translation>Eine Art mit diesem Namen gibt es schon.</translation>
    </message>
</context>
<context>
    <name>AbsencePicker</name>
    <message>
        <source>Out of Office As</source>
        <translation>Nicht im Büro, und zwar</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Anderer Grund …</translation>
    </message>
</context>
<context>
    <name>AppSettings</name>
    <message>
        <source>not fired</source>
        <extracomment>Descriptions of the goals that everyone starts with. The person can change them.</extracomment>
        <translation>keine Kündigung</translation>
    </message>
    <message>
        <source>no probation</source>
        <translation>keine Abmahnung</translation>
    </message>
    <message>
        <source>ideal</source>
        <translation>ideal</translation>
    </message>
</context>
<context>
    <name>AppWindows</name>
    <message>
        <source>Calendar View Settings</source>
        <translation>Einstellungen der Kalenderansicht</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>About Pellory</source>
        <translation>Über Pellory</translation>
    </message>
    <message>
        <source>Save Record</source>
        <translation>Nachweis speichern</translation>
    </message>
</context>
<context>
    <name>AttendanceStatistics</name>
    <message numerus="yes">
        <source>%n days in the office this **month**</source>
        <translation>
            <numerusform>%n Tag im Büro in diesem **Monat**</numerusform>
            <numerusform>%n Tage im Büro in diesem **Monat**</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days in the office this **quarter**</source>
        <translation>
            <numerusform>%n Tag im Büro in diesem **Quartal**</numerusform>
            <numerusform>%n Tage im Büro in diesem **Quartal**</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>**%n more days** to reach **%1**</source>
        <translation>
            <numerusform>Noch **%n Tag** bis **%1**</numerusform>
            <numerusform>Noch **%n Tage** bis **%1**</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>**%n more days** to reach goal **%1**</source>
        <translation>
            <numerusform>Noch **%n Tag** bis zum Ziel **%1**</numerusform>
            <numerusform>Noch **%n Tage** bis zum Ziel **%1**</numerusform>
        </translation>
    </message>
    <message>
        <source>You&apos;ve reached %1 average days in office per week</source>
        <extracomment>%L1 in place of %1 writes the number as the person&apos;s locale has it.</extracomment>
        <translation>Bisher durchschnittlich %L1 Bürotage pro Woche</translation>
    </message>
    <message numerus="yes">
        <source>%n workdays</source>
        <translation>
            <numerusform>%n Arbeitstag</numerusform>
            <numerusform>%n Arbeitstage</numerusform>
        </translation>
    </message>
    <message>
        <source>%1</source>
        <comment>days per week</comment>
        <extracomment>An average of days per week. %L1 in place of %1 writes the number as the person&apos;s locale has it.</extracomment>
        <translation>%L1</translation>
    </message>
    <message>
        <source>%1/5</source>
        <comment>days per week</comment>
        <extracomment>The value of a goal, of five days in a week. %L1 in place of %1 writes it as the person&apos;s locale has it.</extracomment>
        <translation>%L1/5</translation>
    </message>
</context>
<context>
    <name>Background</name>
    <message>
        <source>Pellory</source>
        <translation>Pellory</translation>
    </message>
    <message>
        <source>Quit Without Saving?</source>
        <translation>Ohne Speichern beenden?</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Trotzdem beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Your last changes could not be saved and are lost when Pellory ends. %1</source>
        <translation>Die letzten Änderungen konnten nicht gespeichert werden und gehen verloren, wenn Pellory beendet wird. %1</translation>
    </message>
    <message>
        <source>Set-up is not finished, so Pellory does not check whether you are in the office. Open Pellory to finish it.</source>
        <translation>Die Einrichtung ist nicht abgeschlossen, daher prüft Pellory nicht, ob Sie im Büro sind. Öffnen Sie Pellory, um sie abzuschließen.</translation>
    </message>
    <message>
        <source>Pellory keeps checking in the background whether you are in the office. Start it again to open its window. To end it, choose Quit in the menu of the window.</source>
        <translation>Pellory prüft im Hintergrund weiter, ob Sie im Büro sind. Ein erneuter Start öffnet das Fenster wieder. Mit „Beenden“ im Menü des Fensters beenden Sie es.</translation>
    </message>
</context>
<context>
    <name>BackupAlert</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Backup Not Made</source>
        <translation>Keine Sicherung</translation>
    </message>
    <message>
        <source>%1 Your data itself is saved. Pellory tries again.</source>
        <translation>%1 Ihre Daten selbst sind gespeichert. Pellory versucht es erneut.</translation>
    </message>
</context>
<context>
    <name>BackupService</name>
    <message>
        <source>The latest changes are not in the data file yet.</source>
        <translation>Die letzten Änderungen sind noch nicht in der Datendatei.</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>A date, in the format of QLocale::toString(). Put words in single quotes: &apos;the&apos; d.</extracomment>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date, time of day</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n Tag</numerusform>
            <numerusform>%n Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>1 marked day</source>
        <translation>1 markierter Tag</translation>
    </message>
    <message numerus="yes">
        <source>%n marked days</source>
        <translation>
            <numerusform>%n markierter Tag</numerusform>
            <numerusform>%n markierte Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 Monat</translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n Monat</numerusform>
            <numerusform>%n Monaten</numerusform>
        </translation>
    </message>
    <message>
        <source>same as now</source>
        <translation>wie jetzt</translation>
    </message>
    <message>
        <source>1 day differs</source>
        <translation>1 Tag anders</translation>
    </message>
    <message numerus="yes">
        <source>%n days differ</source>
        <translation>
            <numerusform>%n Tag anders</numerusform>
            <numerusform>%n Tage anders</numerusform>
        </translation>
    </message>
    <message>
        <source>Every day was as it should be. Nothing has changed.</source>
        <translation>Jeder Tag war schon so. Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>1 day was restored. Ctrl+Z in the main window takes it back.</source>
        <translation>1 Tag wurde wiederhergestellt. Strg+Z im Hauptfenster nimmt es zurück.</translation>
    </message>
    <message numerus="yes">
        <source>%n days were restored. Ctrl+Z in the main window takes them back.</source>
        <translation>
            <numerusform>%n Tag wurde wiederhergestellt. Strg+Z im Hauptfenster nimmt es zurück.</numerusform>
            <numerusform>%n Tage wurden wiederhergestellt. Strg+Z im Hauptfenster nimmt es zurück.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CalendarFileError</name>
    <message>
        <source>it recurs in a way that is not supported</source>
        <translation>Er wiederholt sich auf eine Art, die nicht unterstützt wird</translation>
    </message>
    <message>
        <source>it does not last whole days</source>
        <translation>Er dauert keine ganzen Tage</translation>
    </message>
    <message>
        <source>it has a time, and only all-day events count</source>
        <translation>Er hat eine Uhrzeit, und nur ganztägige Termine zählen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date</source>
        <translation>„%1“ ist kein Datum</translation>
    </message>
    <message>
        <source>it has no date</source>
        <translation>Er hat kein Datum</translation>
    </message>
    <message>
        <source>its end does not fit its start</source>
        <translation>Sein Ende passt nicht zu seinem Beginn</translation>
    </message>
    <message>
        <source>it is longer than a year</source>
        <translation>Er dauert länger als ein Jahr</translation>
    </message>
    <message>
        <source>Line %1: an event is left out: %2.</source>
        <translation>Zeile %1: Ein Termin wird ausgelassen. %2.</translation>
    </message>
    <message>
        <source>Line %1: &quot;%2&quot; is left out: %3.</source>
        <translation>Zeile %1: Der Termin „%2“ wird ausgelassen. %3.</translation>
    </message>
    <message>
        <source>The file has more than 10 MB. Export only the calendar with the days off, and choose that file.</source>
        <translation>Die Datei ist größer als 10 MB. Exportieren Sie nur den Kalender mit den freien Tagen und wählen Sie diese Datei.</translation>
    </message>
    <message>
        <source>This is not a calendar file. Export the calendar in the iCalendar format (.ics) and choose that file.</source>
        <translation>Dies ist keine Kalenderdatei. Exportieren Sie den Kalender im Format iCalendar (.ics) und wählen Sie diese Datei.</translation>
    </message>
    <message>
        <source>The file has no end. Events may be missing.</source>
        <translation>Die Datei hat kein Ende. Termine fehlen vielleicht.</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>Sein Ende fehlt</translation>
    </message>
    <message>
        <source>The calendar has more than %L1 days. Export only the calendar with the days off.</source>
        <translation>Der Kalender hat mehr als %L1 Tage. Exportieren Sie nur den Kalender mit den freien Tagen.</translation>
    </message>
    <message numerus="yes">
        <source>%n more problems are not listed.</source>
        <translation>
            <numerusform>%n weiteres Problem ist nicht aufgeführt.</numerusform>
            <numerusform>%n weitere Probleme sind nicht aufgeführt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar is not in UTF-8. Export it with the encoding UTF-8 in the program that it comes from, and choose that file.</source>
        <translation>Der Kalender ist nicht in UTF-8. Exportieren Sie ihn in dem Programm, aus dem er stammt, mit der Kodierung UTF-8, und wählen Sie diese Datei.</translation>
    </message>
</context>
<context>
    <name>CalendarFileReview</name>
    <message>
        <source>Days Off from %1</source>
        <comment>file</comment>
        <translation>Freie Tage aus %1</translation>
    </message>
    <message>
        <source>The file has no all-day entries.</source>
        <translation>Die Datei enthält keine ganztägigen Einträge.</translation>
    </message>
    <message>
        <source>Uncheck the dates on which you work.</source>
        <translation>Entfernen Sie das Häkchen bei Tagen, an denen Sie arbeiten.</translation>
    </message>
    <message>
        <source>Not everything in the file can be read:</source>
        <translation>Nicht alles in der Datei kann gelesen werden:</translation>
    </message>
    <message>
        <source>What was left out</source>
        <translation>Was ausgelassen wurde</translation>
    </message>
    <message>
        <source>not a workday</source>
        <translation>kein Arbeitstag</translation>
    </message>
    <message>
        <source>already off</source>
        <translation>schon frei</translation>
    </message>
</context>
<context>
    <name>CalendarPage</name>
    <message>
        <source>Error loading month!</source>
        <translation>Der Monat konnte nicht geladen werden!</translation>
    </message>
    <message>
        <source>Save Record…</source>
        <translation>Nachweis speichern …</translation>
    </message>
</context>
<context>
    <name>CalendarView</name>
    <message>
        <source>S</source>
        <comment>Sunday</comment>
        <translation>S</translation>
    </message>
    <message>
        <source>M</source>
        <comment>Monday</comment>
        <translation>M</translation>
    </message>
    <message>
        <source>T</source>
        <comment>Tuesday</comment>
        <translation>D</translation>
    </message>
    <message>
        <source>W</source>
        <comment>Wednesday</comment>
        <translation>M</translation>
    </message>
    <message>
        <source>T</source>
        <comment>Thursday</comment>
        <translation>D</translation>
    </message>
    <message>
        <source>F</source>
        <comment>Friday</comment>
        <translation>F</translation>
    </message>
    <message>
        <source>S</source>
        <comment>Saturday</comment>
        <translation>S</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>month and year</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1, has a note</source>
        <comment>date and state</comment>
        <translation>%1, mit Notiz</translation>
    </message>
</context>
<context>
    <name>CalendarViewSettingsView</name>
    <message>
        <source>Show Progress Trackers</source>
        <translation>Fortschrittsbalken anzeigen</translation>
    </message>
    <message>
        <source>Show Quarter Stats</source>
        <translation>Quartalsstatistik anzeigen</translation>
    </message>
    <message>
        <source>Show Month Stats</source>
        <translation>Monatsstatistik anzeigen</translation>
    </message>
    <message>
        <source>Show &quot;Will be In Office&quot; in Progress Tracker</source>
        <translation>„Im Büro geplant“ im Fortschrittsbalken anzeigen</translation>
    </message>
    <message>
        <source>Show day status on hover</source>
        <translation>Tagesstatus beim Darüberfahren anzeigen</translation>
    </message>
    <message>
        <source>Show Unmarked Workdays</source>
        <translation>Offene Arbeitstage anzeigen</translation>
    </message>
    <message>
        <source>Show Week Numbers</source>
        <translation>Kalenderwochen anzeigen</translation>
    </message>
    <message>
        <source>First Day of Week</source>
        <translation>Erster Tag der Woche</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>As the System Has It</source>
        <translation>Wie im System</translation>
    </message>
</context>
<context>
    <name>ChangeText</name>
    <message>
        <source>ddd d MMMM</source>
        <extracomment>A short date, in the format of QLocale::toString(). Put words in single quotes: &apos;the&apos; d.</extracomment>
        <translation>ddd d. MMMM</translation>
    </message>
    <message>
        <source>ddd d MMMM yyyy</source>
        <translation>ddd d. MMMM yyyy</translation>
    </message>
    <message>
        <source>%1 is %2 again</source>
        <comment>day and state</comment>
        <translation>%1 ist wieder „%2“</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>day and state</comment>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n days: %1</source>
        <comment>state</comment>
        <translation>
            <numerusform>%n Tag: %1</numerusform>
            <numerusform>%n Tage: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n Tag</numerusform>
            <numerusform>%n Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>Marked automatically: %1</source>
        <translation>Automatisch erfasst: %1</translation>
    </message>
    <message>
        <source>Taken back: %1</source>
        <translation>Zurückgenommen: %1</translation>
    </message>
    <message>
        <source>Set again: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>Restored: %1</source>
        <translation>Wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>Plan changed: %1</source>
        <translation>Plan geändert: %1</translation>
    </message>
</context>
<context>
    <name>CheckOutcome</name>
    <message>
        <source>Looking for networks...</source>
        <translation>Netzwerke werden gesucht …</translation>
    </message>
    <message>
        <source>Today was marked as in the office.</source>
        <translation>Heute wurde als „Im Büro“ erfasst.</translation>
    </message>
    <message>
        <source>An office network is in range. Today is already marked.</source>
        <translation>Ein Büronetzwerk ist in Reichweite. Der Tag ist bereits eingetragen.</translation>
    </message>
    <message>
        <source>No office network is in range.</source>
        <translation>Kein Büronetzwerk ist in Reichweite.</translation>
    </message>
    <message>
        <source>Automatic tracking is off, so Pellory did not check.</source>
        <translation>Die automatische Erfassung ist aus, daher hat Pellory nicht geprüft.</translation>
    </message>
    <message>
        <source>Checks start when set-up is finished and automatic tracking is on.</source>
        <translation>Geprüft wird, sobald die Einrichtung abgeschlossen und die automatische Erfassung an ist.</translation>
    </message>
    <message>
        <source>An office network is in range. You took back today&apos;s mark.</source>
        <translation>Ein Büronetzwerk ist in Reichweite. Sie haben den heutigen Eintrag zurückgenommen.</translation>
    </message>
    <message>
        <source>No office network is set.</source>
        <translation>Es ist kein Büronetzwerk eingetragen.</translation>
    </message>
</context>
<context>
    <name>CheckedText</name>
    <message>
        <source>%1, checked</source>
        <comment>row of a list</comment>
        <translation>%1, angekreuzt</translation>
    </message>
    <message>
        <source>%1, partly checked</source>
        <comment>row of a list</comment>
        <translation>%1, teilweise angekreuzt</translation>
    </message>
    <message>
        <source>%1, not checked</source>
        <comment>row of a list</comment>
        <translation>%1, nicht angekreuzt</translation>
    </message>
</context>
<context>
    <name>CommandRun</name>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>Quartal</translation>
    </message>
    <message>
        <source>Set-up Not Finished</source>
        <translation>Einrichtung nicht abgeschlossen</translation>
    </message>
    <message>
        <source>Pellory does not check whether you are in the office before its set-up is finished.</source>
        <translation>Pellory prüft erst, ob Sie im Büro sind, wenn die Einrichtung abgeschlossen ist.</translation>
    </message>
    <message>
        <source>Finish Set-up</source>
        <translation>Einrichtung abschließen</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
</context>
<context>
    <name>CountingTexts</name>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>A date, in the format of QLocale::toString(). Put words in single quotes: &apos;the&apos; d.</extracomment>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMMM</source>
        <extracomment>A short date, in the format of QLocale::toString(). Put words in single quotes: &apos;the&apos; d.</extracomment>
        <translation>ddd d. MMMM</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <comment>days of the week</comment>
        <translation>%1–%2</translation>
    </message>
    <message>
        <source>Added by hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Public holiday</source>
        <translation>Feiertag</translation>
    </message>
    <message>
        <source>From a file</source>
        <translation>Aus einer Datei</translation>
    </message>
    <message>
        <source>1 day off</source>
        <translation>1 freier Tag</translation>
    </message>
    <message numerus="yes">
        <source>%n days off</source>
        <translation>
            <numerusform>%n freier Tag</numerusform>
            <numerusform>%n freie Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day off was added.</source>
        <translation>1 freier Tag wurde hinzugefügt.</translation>
    </message>
    <message numerus="yes">
        <source>%n days off were added.</source>
        <translation>
            <numerusform>%n freier Tag wurde hinzugefügt.</numerusform>
            <numerusform>%n freie Tage wurden hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day off was taken out.</source>
        <translation>1 freier Tag wurde gestrichen.</translation>
    </message>
    <message numerus="yes">
        <source>%n days off were taken out.</source>
        <translation>
            <numerusform>%n freier Tag wurde gestrichen.</numerusform>
            <numerusform>%n freie Tage wurden gestrichen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed, because the data file cannot be read. Try again, or restart Pellory.</source>
        <translation>Nichts wurde geändert, weil die Datendatei nicht gelesen werden kann. Versuchen Sie es noch einmal, oder starten Sie Pellory neu.</translation>
    </message>
</context>
<context>
    <name>DataSettingsView</name>
    <message>
        <source>No program opens folders here. Use the path above.</source>
        <translation>Hier öffnet kein Programm Ordner. Der Pfad steht oben.</translation>
    </message>
    <message>
        <source>Back Up Now</source>
        <translation>Jetzt sichern</translation>
    </message>
    <message>
        <source>There is no backup yet.</source>
        <translation>Es gibt noch keine Sicherung.</translation>
    </message>
    <message>
        <source>Backed up at %1.</source>
        <comment>time of day</comment>
        <translation>Um %1 gesichert.</translation>
    </message>
    <message>
        <source>Backing Up...</source>
        <translation>Wird gesichert …</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Your Data</source>
        <translation>Ihre Daten</translation>
    </message>
    <message>
        <source>All of it is in one file on this computer:</source>
        <translation>Alles liegt in einer Datei auf diesem Rechner:</translation>
    </message>
    <message>
        <source>Data file</source>
        <translation>Datendatei</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>A backup is made on each day on which something has changed. Those of the last seven days, five weeks and twelve months are kept.</source>
        <translation>An jedem Tag, an dem sich etwas geändert hat, wird gesichert. Die Sicherungen der letzten sieben Tage, fünf Wochen und zwölf Monate bleiben erhalten.</translation>
    </message>
    <message>
        <source>The last backup failed. %1 Pellory tries again.</source>
        <translation>Die letzte Sicherung ist fehlgeschlagen. %1 Pellory versucht es erneut.</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Wiederherstellen …</translation>
    </message>
    <message>
        <source>made before an update</source>
        <translation>vor einer Aktualisierung</translation>
    </message>
    <message>
        <source>Restore the backup of %1</source>
        <translation>Die Sicherung vom %1 wiederherstellen</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
</context>
<context>
    <name>DateField</name>
    <message>
        <source>This is not a date. Type one like %1.</source>
        <translation>Das ist kein Datum. Geben Sie eines wie %1 ein.</translation>
    </message>
    <message>
        <source>The year must be between %1 and %2.</source>
        <translation>Das Jahr muss zwischen %1 und %2 liegen.</translation>
    </message>
</context>
<context>
    <name>DayAbsences</name>
    <message>
        <source>%1 (%2)</source>
        <comment>state and reason</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>DayCommands</name>
    <message>
        <source>“%1” is not a date. Write it as in 2026-11-20.</source>
        <translation>„%1“ ist kein Datum. Schreiben Sie es wie in 2026-11-20.</translation>
    </message>
    <message>
        <source>“%1” is not a state. The states are: %2.</source>
        <translation>„%1“ ist kein Status. Möglich sind: %2.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Es gibt nichts, was rückgängig gemacht werden kann.</translation>
    </message>
    <message>
        <source>The change could not be saved. %1</source>
        <translation>Die Änderung konnte nicht gespeichert werden. %1</translation>
    </message>
    <message>
        <source>Pellory is starting.</source>
        <translation>Pellory startet gerade.</translation>
    </message>
</context>
<context>
    <name>DayDetails</name>
    <message>
        <source>The note of this day cannot be read.</source>
        <translation>Die Notiz dieses Tages kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Set before changes were recorded</source>
        <translation>Gesetzt, bevor Änderungen aufgezeichnet wurden</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>state, and who set it when</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Früher</translation>
    </message>
    <message>
        <source>Set Back</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Set back to %1. %2</source>
        <comment>state, and who set it when</comment>
        <translation>Zurücksetzen auf %1. %2</translation>
    </message>
    <message>
        <source>Day Off</source>
        <translation>Freier Tag</translation>
    </message>
</context>
<context>
    <name>DayHistory</name>
    <message>
        <source>Before the first recorded change</source>
        <translation>Vor der ersten aufgezeichneten Änderung</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <extracomment>A date in the format of QLocale::toString(). Put words in single quotes: &apos;the&apos; d.</extracomment>
        <translation>d. MMMM</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Automatically</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Undone</source>
        <translation>Rückgängig gemacht</translation>
    </message>
    <message>
        <source>Redone</source>
        <translation>Wiederholt</translation>
    </message>
    <message>
        <source>Restored from a backup</source>
        <translation>Aus einer Sicherung wiederhergestellt</translation>
    </message>
    <message>
        <source>Imported</source>
        <translation>Importiert</translation>
    </message>
    <message>
        <source>By a plan</source>
        <translation>Durch einen Plan</translation>
    </message>
</context>
<context>
    <name>DayMenu</name>
    <message>
        <source>Details…</source>
        <translation>Details …</translation>
    </message>
    <message>
        <source>Not a Workday</source>
        <translation>Kein Arbeitstag</translation>
    </message>
</context>
<context>
    <name>DayOffField</name>
    <message>
        <source>Name of the Day Off</source>
        <translation>Name des freien Tags</translation>
    </message>
</context>
<context>
    <name>DaySelection</name>
    <message>
        <source>No days selected</source>
        <translation>Keine Tage ausgewählt</translation>
    </message>
</context>
<context>
    <name>DayState</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>In the Office</source>
        <translation>Im Büro</translation>
    </message>
    <message>
        <source>Out of Office</source>
        <translation>Nicht im Büro</translation>
    </message>
    <message>
        <source>Vacation Day</source>
        <translation>Urlaub</translation>
    </message>
    <message>
        <source>Will Be In Office</source>
        <translation>Im Büro geplant</translation>
    </message>
</context>
<context>
    <name>DayTexts</name>
    <message>
        <source>Day Off</source>
        <translation>Freier Tag</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>state, and name of the day off</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>dddd d MMMM yyyy</source>
        <extracomment>A date as a screen reader says it, in the format of QLocale::toString(). Put words in single quotes: &apos;the&apos; d.</extracomment>
        <translation>dddd, d. MMMM yyyy</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date and state</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Day Off: %1</source>
        <translation>Freier Tag: %1</translation>
    </message>
</context>
<context>
    <name>DaysOffCard</name>
    <message>
        <source>Days Off</source>
        <translation>Freie Tage</translation>
    </message>
    <message>
        <source>A day off is not a workday, whatever its day of the week.</source>
        <translation>Ein freier Tag ist kein Arbeitstag, egal auf welchen Wochentag er fällt.</translation>
    </message>
    <message>
        <source>Remove</source>
        <comment>public holidays</comment>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>From a Calendar File…</source>
        <translation>Aus Kalenderdatei …</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Name of the day off</source>
        <translation>Name des freien Tages</translation>
    </message>
    <message>
        <source>There are no days off.</source>
        <translation>Es gibt keine freien Tage.</translation>
    </message>
    <message>
        <source>Add Day Off</source>
        <translation>Freien Tag hinzufügen</translation>
    </message>
    <message>
        <source>Days off</source>
        <translation>Freie Tage</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Ändern …</translation>
    </message>
    <message>
        <source>Public Holidays…</source>
        <translation>Feiertage …</translation>
    </message>
    <message>
        <source>Public holidays of %1, added until %2</source>
        <comment>region, year</comment>
        <translation>Feiertage von %1, hinzugefügt bis %2</translation>
    </message>
    <message>
        <source>Change the public holidays</source>
        <translation>Feiertage ändern</translation>
    </message>
    <message>
        <source>Remove the public holidays</source>
        <translation>Feiertage entfernen</translation>
    </message>
    <message>
        <source>Take Out 1 Day Off</source>
        <translation>1 freien Tag streichen</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Streichen</translation>
    </message>
    <message numerus="yes">
        <source>Take Out %n Days Off</source>
        <translation>
            <numerusform>%n freien Tag streichen</numerusform>
            <numerusform>%n freie Tage streichen</numerusform>
        </translation>
    </message>
    <message>
        <source>No days off were read. %1</source>
        <translation>Es wurden keine freien Tage gelesen. %1</translation>
    </message>
    <message>
        <source>%1 is a day off now.</source>
        <comment>date</comment>
        <translation>Der %1 ist jetzt ein freier Tag.</translation>
    </message>
    <message>
        <source>The public holidays of %1 from today on were taken out.</source>
        <translation>Die Feiertage von %1 ab heute wurden gestrichen.</translation>
    </message>
    <message>
        <source>Choose a Calendar File</source>
        <translation>Kalenderdatei auswählen</translation>
    </message>
    <message>
        <source>Calendar files (*.ics)</source>
        <translation>Kalenderdateien (*.ics)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>DaysOffModel</name>
    <message>
        <source>%1: %2</source>
        <comment>year, number of days off</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>DaysOffReview</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Add 1 Day Off</source>
        <translation>1 freien Tag hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>Add %n Days Off</source>
        <translation>
            <numerusform>%n freien Tag hinzufügen</numerusform>
            <numerusform>%n freie Tage hinzufügen</numerusform>
        </translation>
    </message>
    <message>
        <source>Add %1, Take Out %2</source>
        <extracomment>Numbers of days off.</extracomment>
        <translation>%1 hinzufügen, %2 streichen</translation>
    </message>
    <message>
        <source>Take Out 1 Day Off</source>
        <translation>1 freien Tag streichen</translation>
    </message>
    <message numerus="yes">
        <source>Take Out %n Days Off</source>
        <translation>
            <numerusform>%n freien Tag streichen</numerusform>
            <numerusform>%n freie Tage streichen</numerusform>
        </translation>
    </message>
    <message>
        <source>Days off to choose</source>
        <translation>Freie Tage zur Auswahl</translation>
    </message>
</context>
<context>
    <name>DaysPerWeekGoalView</name>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>No &quot;days in office per week&quot; goals</source>
        <translation>Keine Ziele für „Bürotage pro Woche“</translation>
    </message>
    <message>
        <source>New goal</source>
        <translation>Neues Ziel</translation>
    </message>
    <message>
        <source>Input must be a number between 0.0 and 7.0</source>
        <translation>Bitte eine Zahl zwischen 0.0 und 7.0 eingeben, mit Punkt statt Komma (etwa 2.5)</translation>
    </message>
    <message>
        <source>Days Per Week must be a number between 0.0 and 7.0</source>
        <translation>„Tage pro Woche“ muss eine Zahl zwischen 0.0 und 7.0 sein, mit Punkt statt Komma (etwa 2.5)</translation>
    </message>
    <message>
        <source>Days Per Week Goals</source>
        <translation>Ziele (Tage pro Woche)</translation>
    </message>
    <message>
        <source>These are the goals used by the progress tracker, in average days in-office per week.</source>
        <translation>An diesen Zielen misst sich der Fortschritt: durchschnittliche Bürotage pro Woche, mit Punkt statt Komma geschrieben.</translation>
    </message>
    <message>
        <source>Days Per Week Goal</source>
        <translation>Tage pro Woche</translation>
    </message>
    <message>
        <source>Add Goal</source>
        <translation>Ziel hinzufügen</translation>
    </message>
    <message>
        <source>Remove the goal %1</source>
        <translation>Ziel %1 entfernen</translation>
    </message>
    <message>
        <source>Description of the goal %1</source>
        <translation>Beschreibung des Ziels %1</translation>
    </message>
</context>
<context>
    <name>DesktopSystemSettings</name>
    <message>
        <source>No settings page for this could be opened. Ask your administrator to allow you to see Wi-Fi networks: the permission is called org.freedesktop.NetworkManager.wifi.scan.</source>
        <translation>Dafür ließ sich keine Einstellungsseite öffnen. Bitten Sie Ihren Administrator, Ihnen die Suche nach WLAN-Netzwerken zu erlauben: Die Berechtigung heißt org.freedesktop.NetworkManager.wifi.scan.</translation>
    </message>
</context>
<context>
    <name>ExchangeCard</name>
    <message>
        <source>Import Days…</source>
        <translation>Tage importieren …</translation>
    </message>
    <message>
        <source>Export Calendar…</source>
        <translation>Kalender exportieren …</translation>
    </message>
    <message>
        <source>Export and Import</source>
        <translation>Export und Import</translation>
    </message>
    <message>
        <source>Export Days…</source>
        <translation>Tage exportieren …</translation>
    </message>
    <message>
        <source>List of Days</source>
        <translation>Liste der Tage</translation>
    </message>
    <message>
        <source>A CSV file with all days, their notes and days off, for a spreadsheet or another computer. Plain lists of dates and states can be imported too.</source>
        <translation>Eine CSV-Datei mit allen Tagen, ihren Notizen und freien Tagen, für eine Tabelle oder einen anderen Rechner. Auch einfache Listen aus Datum und Status lassen sich importieren.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>An iCalendar file with an all-day event for each day in these states, without notes and reasons. Importing a later one updates the events.</source>
        <translation>Eine iCalendar-Datei mit einem ganztägigen Termin für jeden Tag mit einem dieser Status, ohne Notizen und Gründe. Wer später eine neuere importiert, aktualisiert die Termine.</translation>
    </message>
    <message>
        <source>Choose a List of Days</source>
        <translation>Liste von Tagen auswählen</translation>
    </message>
    <message>
        <source>Lists of days (*.csv *.tsv *.txt)</source>
        <translation>Listen von Tagen (*.csv *.tsv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Pellory days %1.csv</source>
        <comment>file name</comment>
        <translation>Pellory-Tage %1.csv</translation>
    </message>
    <message>
        <source>Export Days</source>
        <translation>Tage exportieren</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>Export Calendar</source>
        <translation>Kalender exportieren</translation>
    </message>
    <message>
        <source>Pellory.ics</source>
        <comment>file name</comment>
        <translation>Pellory.ics</translation>
    </message>
    <message>
        <source>Calendar files (*.ics)</source>
        <translation>Kalenderdateien (*.ics)</translation>
    </message>
    <message>
        <source>Nothing was exported. %1</source>
        <translation>Es wurde nichts exportiert. %1</translation>
    </message>
    <message>
        <source>%1 written to %2.</source>
        <comment>number of days, file</comment>
        <translation>%1 in %2 geschrieben.</translation>
    </message>
</context>
<context>
    <name>FileError</name>
    <message>
        <source>it has too many cells</source>
        <translation>sie hat zu viele Zellen</translation>
    </message>
    <message>
        <source>there is a quotation mark within a cell that does not begin with one</source>
        <translation>in einer Zelle, die nicht mit einem Anführungszeichen beginnt, steht eines</translation>
    </message>
    <message>
        <source>there is text after a closing quotation mark</source>
        <translation>nach einem schließenden Anführungszeichen steht noch Text</translation>
    </message>
    <message>
        <source>a quotation mark is never closed, so the rest of the file is left out</source>
        <translation>ein Anführungszeichen wird nie geschlossen, daher fehlt der Rest der Datei</translation>
    </message>
    <message>
        <source>This is not a list of days. Its first line must name the columns, among them &quot;date&quot; and &quot;state&quot;, or be a day such as 2026-11-20,IN_OFFICE.</source>
        <translation>Das ist keine Liste von Tagen. Die erste Zeile muss die Spalten benennen, darunter „date“ und „state“, oder ein Tag wie 2026-11-20,IN_OFFICE sein.</translation>
    </message>
    <message>
        <source>The file is not in UTF-8. Save it as CSV with the encoding UTF-8 in the program that it comes from.</source>
        <translation>Die Datei ist nicht in UTF-8. Speichern Sie sie in dem Programm, aus dem sie stammt, als CSV mit der Kodierung UTF-8.</translation>
    </message>
    <message>
        <source>This is not a text file. Choose a CSV file.</source>
        <translation>Das ist keine Textdatei. Wählen Sie eine CSV-Datei.</translation>
    </message>
    <message numerus="yes">
        <source>%n more problems are not listed.</source>
        <translation>
            <numerusform>%n weiteres Problem ist nicht aufgeführt.</numerusform>
            <numerusform>%n weitere Probleme sind nicht aufgeführt.</numerusform>
        </translation>
    </message>
    <message>
        <source>its number of cells is %1, and that of the first line %2</source>
        <translation>sie hat die Zellenzahl %1, die erste Zeile %2</translation>
    </message>
    <message>
        <source>its date is in line %1 already</source>
        <translation>ihr Datum steht schon in Zeile %1</translation>
    </message>
    <message>
        <source>The list has more than %L1 days. Split it, and import one part after the other.</source>
        <translation>Die Liste hat mehr als %L1 Tage. Teilen Sie sie, und importieren Sie die Teile nacheinander.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date such as 2026-11-20</source>
        <translation>„%1“ ist kein Datum wie 2026-11-20</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a state of a day</source>
        <translation>„%1“ ist kein Status eines Tages</translation>
    </message>
    <message>
        <source>only a day out of office has a kind of absence</source>
        <translation>nur ein Tag außerhalb des Büros hat eine Art der Abwesenheit</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a way to count</source>
        <translation>„%1“ ist keine Zählweise</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a source of days off</source>
        <translation>„%1“ ist keine Herkunft freier Tage</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nobody who changes days</source>
        <translation>„%1“ ist niemand, der Tage ändert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 2026-11-20T08:15:00.000Z</source>
        <translation>„%1“ ist keine Zeit wie 2026-11-20T08:15:00.000Z</translation>
    </message>
    <message>
        <source>Line %1 is left out: %2.</source>
        <extracomment>The problem is half a sentence.</extracomment>
        <translation>Zeile %1 wird ausgelassen: %2.</translation>
    </message>
    <message>
        <source>More than %L1 lines cannot be read. Choose a list of days.</source>
        <translation>Mehr als %L1 Zeilen sind nicht lesbar. Wählen Sie eine Liste von Tagen.</translation>
    </message>
    <message>
        <source>The file has more than 50 MB. Choose a list of days.</source>
        <translation>Die Datei hat mehr als 50 MB. Wählen Sie eine Liste von Tagen.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1. Choose another file.</source>
        <translation>Die Datei kann nicht gelesen werden: %1. Wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>it is a folder or a device</source>
        <translation>es ist ein Ordner oder ein Gerät</translation>
    </message>
    <message>
        <source>The file cannot be written: %1. Choose another place.</source>
        <translation>Die Datei kann nicht geschrieben werden: %1. Wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <source>the list names more than %1 kinds of absence</source>
        <translation>die Liste nennt mehr als %1 Arten der Abwesenheit</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotifier</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>Enable notifiations</source>
        <translation>Benachrichtigungen einschalten</translation>
    </message>
    <message>
        <source>Get notified when you&apos;re automatically tracked as in or out of office</source>
        <translation>Meldet, wenn ein Tag automatisch als „Im&#xa0;Büro“ oder „Nicht&#xa0;im&#xa0;Büro“ erfasst wurde</translation>
    </message>
    <message>
        <source>Vacation days count as in the office</source>
        <translation>Urlaubstage zählen als Bürotage</translation>
    </message>
    <message>
        <source>Re-run Welcome Tutorial</source>
        <translation>Einführung erneut zeigen</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>So you don&apos;t have to remember to open for automatic tracking</source>
        <translation>Damit die automatische Erfassung ohne Zutun läuft</translation>
    </message>
</context>
<context>
    <name>GoalsPage</name>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>month, year</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>dates</comment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1: %2. %3.</source>
        <comment>period, days, what is left</comment>
        <translation>%1: %2. %3.</translation>
    </message>
</context>
<context>
    <name>GridPage</name>
    <message>
        <source>Plan Usual Week…</source>
        <translation>Übliche Woche planen …</translation>
    </message>
    <message>
        <source>Plan Usual Week</source>
        <translation>Übliche Woche planen</translation>
    </message>
    <message>
        <source>None of your usual days is left to plan in this quarter</source>
        <translation>In diesem Quartal ist keiner Ihrer üblichen Tage mehr zu planen</translation>
    </message>
    <message>
        <source>None of your usual days is left to plan in this month</source>
        <translation>In diesem Monat ist keiner Ihrer üblichen Tage mehr zu planen</translation>
    </message>
    <message>
        <source>Nothing was planned, because the data file cannot be read</source>
        <translation>Nichts wurde geplant, weil die Datendatei nicht gelesen werden kann</translation>
    </message>
</context>
<context>
    <name>HolidayChooser</name>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>From the year</source>
        <translation>Ab dem Jahr</translation>
    </message>
    <message>
        <source>All of %1</source>
        <comment>country</comment>
        <translation>Ganz %1</translation>
    </message>
</context>
<context>
    <name>HolidayReview</name>
    <message>
        <source>Public Holidays</source>
        <translation>Feiertage</translation>
    </message>
    <message>
        <source>Uncheck the dates on which you work.</source>
        <translation>Entfernen Sie das Häkchen bei Tagen, an denen Sie arbeiten.</translation>
    </message>
    <message>
        <source>not a workday</source>
        <translation>kein Arbeitstag</translation>
    </message>
    <message>
        <source>Uncheck the dates on which you work. Holidays of %1 that are not checked are taken out.</source>
        <translation>Entfernen Sie das Häkchen bei Tagen, an denen Sie arbeiten. Feiertage von %1 ohne Häkchen werden gestrichen.</translation>
    </message>
    <message>
        <source>off until now</source>
        <translation>bisher frei</translation>
    </message>
    <message>
        <source>already off</source>
        <translation>schon frei</translation>
    </message>
</context>
<context>
    <name>ImportView</name>
    <message>
        <source>Reading the file...</source>
        <translation>Die Datei wird gelesen ...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Nothing was imported. %1</source>
        <translation>Es wurde nichts importiert. %1</translation>
    </message>
    <message>
        <source>Days from %1</source>
        <comment>file</comment>
        <translation>Tage aus %1</translation>
    </message>
    <message>
        <source>Days that the list would change</source>
        <translation>Tage, die die Liste ändern würde</translation>
    </message>
    <message>
        <source>Add %1</source>
        <comment>number of notes or days off</comment>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Not everything in the file can be read:</source>
        <translation>Nicht alles in der Datei ist lesbar:</translation>
    </message>
    <message>
        <source>What was left out</source>
        <translation>Was ausgelassen wurde</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Es gibt nichts zu importieren.</translation>
    </message>
    <message>
        <source>Choose what to import. A backup of what is here now is made first.</source>
        <translation>Wählen Sie, was importiert werden soll. Vorher wird eine Sicherung des jetzigen Stands gemacht.</translation>
    </message>
    <message>
        <source>Days that are marked otherwise here stay as they are, unless you choose them.</source>
        <translation>Tage, die hier anders markiert sind, bleiben, wie sie sind, wenn Sie sie nicht auswählen.</translation>
    </message>
    <message>
        <source>Marked as in the list already: %1.</source>
        <translation>Schon so markiert wie in der Liste: %1.</translation>
    </message>
    <message>
        <source>Notes and days off that differ and stay as they are here: %1.</source>
        <translation>Notizen und freie Tage, die abweichen und hier bleiben, wie sie sind: %1.</translation>
    </message>
    <message>
        <source>Import 1 Day</source>
        <translation>1 Tag importieren</translation>
    </message>
    <message numerus="yes">
        <source>Import %n Days</source>
        <translation>
            <numerusform>%n Tag importieren</numerusform>
            <numerusform>%n Tage importieren</numerusform>
        </translation>
    </message>
    <message>
        <source>Importing...</source>
        <translation>Wird importiert ...</translation>
    </message>
    <message>
        <source>Imported: %1.</source>
        <translation>Importiert: %1.</translation>
    </message>
    <message>
        <source>%1 Ctrl+Z in the main window takes this back.</source>
        <translation>%1 Strg+Z im Hauptfenster nimmt dies zurück.</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 Notiz</translation>
    </message>
    <message numerus="yes">
        <source>%n notes</source>
        <translation>
            <numerusform>%n Notiz</numerusform>
            <numerusform>%n Notizen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day off</source>
        <translation>1 freier Tag</translation>
    </message>
    <message numerus="yes">
        <source>%n days off</source>
        <translation>
            <numerusform>%n freier Tag</numerusform>
            <numerusform>%n freie Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 Ctrl+Z in the main window takes back what was marked; notes, days off and kinds of absence stay.</source>
        <translation>%1 Strg+Z im Hauptfenster nimmt das Markierte zurück; Notizen, freie Tage und Arten der Abwesenheit bleiben.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>InOfficeCheck</name>
    <message>
        <source>Pellory</source>
        <translation>Pellory</translation>
    </message>
    <message>
        <source>There was a problem using to Wi-Fi to detect if you&apos;re in the office or not.

%1</source>
        <translation>Über das WLAN ließ sich nicht feststellen, ob Sie im Büro sind.

%1</translation>
    </message>
</context>
<context>
    <name>InOfficeDetectionError</name>
    <message>
        <source>There is a problem with the database.</source>
        <translation>Es gibt ein Problem mit der Datenbank.</translation>
    </message>
    <message>
        <source>The app does not have location access.</source>
        <translation>Die App hat keinen Standortzugriff.</translation>
    </message>
    <message>
        <source>Could not find the default Wi-Fi interface.</source>
        <translation>Die Standard-WLAN-Schnittstelle wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Wi-Fi is turned off.</source>
        <translation>Das WLAN ist ausgeschaltet.</translation>
    </message>
</context>
<context>
    <name>InOfficeModelUpdater</name>
    <message>
        <source>Pellory</source>
        <translation>Pellory</translation>
    </message>
    <message>
        <source>You have been marked as in the office today</source>
        <translation>Der heutige Tag wurde als „Im Büro“ erfasst</translation>
    </message>
    <message>
        <source>(Not) Pellory</source>
        <translation>(Nicht) Pellory</translation>
    </message>
    <message>
        <source>You have been marked as out of office for yesterday</source>
        <translation>Der gestrige Tag wurde als „Nicht im Büro“ erfasst</translation>
    </message>
</context>
<context>
    <name>LegendView</name>
    <message>
        <source>Weekend Day</source>
        <translation>Wochenendtag</translation>
    </message>
    <message>
        <source>Change to Next Status</source>
        <translation>Zum nächsten Status wechseln</translation>
    </message>
    <message>
        <source>Menu</source>
        <comment>key</comment>
        <translation>Menü</translation>
    </message>
    <message>
        <source>: Open Status Picker Menu </source>
        <translation>Statusmenü öffnen</translation>
    </message>
    <message>
        <source>Show day status on hover</source>
        <translation>Tagesstatus beim Darüberfahren anzeigen</translation>
    </message>
    <message>
        <source>Set Status of Focused Day</source>
        <translation>Status des ausgewählten Tages setzen</translation>
    </message>
    <message>
        <source>%1: key %2</source>
        <comment>state and digit</comment>
        <translation>%1: Taste %2</translation>
    </message>
    <message>
        <source>%1: %2 with a click, or key %3</source>
        <comment>state, modifier key and digit</comment>
        <translation>%1: Klick mit %2 oder Taste %3</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Klick</translation>
    </message>
    <message>
        <source>Menu key or right click</source>
        <translation>Menütaste oder Rechtsklick</translation>
    </message>
    <message>
        <source>Keys %1</source>
        <translation>Tasten %1</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>gesture and what it does</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Show Its Details and Note</source>
        <translation>Seine Details und Notiz zeigen</translation>
    </message>
    <message>
        <source>Undo, with %1: Redo</source>
        <extracomment>%1 is the Shift key.</extracomment>
        <translation>Rückgängig, mit %1: Wiederholen</translation>
    </message>
    <message>
        <source>Day Off, such as a Holiday</source>
        <translation>Freier Tag, etwa ein Feiertag</translation>
    </message>
    <message>
        <source>Day Off, such as a Holiday: a thin outline</source>
        <translation>Freier Tag, etwa ein Feiertag: ein dünner Rand</translation>
    </message>
    <message>
        <source>48 · 2</source>
        <comment>number of a week, and its days in the office</comment>
        <translation>48 · 2</translation>
    </message>
    <message>
        <source>Week, and Its Office Days</source>
        <translation>Kalenderwoche und ihre Bürotage</translation>
    </message>
    <message>
        <source>Select Days by Dragging</source>
        <translation>Tage durch Ziehen auswählen</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Ziehen</translation>
    </message>
    <message>
        <source>Select Days with Arrows</source>
        <translation>Tage mit Pfeiltasten auswählen</translation>
    </message>
    <message>
        <source>%1 with an arrow key</source>
        <translation>%1 mit einer Pfeiltaste</translation>
    </message>
</context>
<context>
    <name>LocationAlert</name>
    <message>
        <source>Disable Automatic Tracking</source>
        <translation>Erfassung ausschalten</translation>
    </message>
    <message>
        <source>Location Permissions Needed</source>
        <translation>Standortberechtigung erforderlich</translation>
    </message>
    <message>
        <source>You have automatic in office tracking enabled, but the app doesn&apos;t have access to your location.</source>
        <translation>Die automatische Erfassung ist eingeschaltet, aber die App hat keinen Standortzugriff.</translation>
    </message>
    <message>
        <source>Allow Access</source>
        <translation>Zugriff erlauben</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
</context>
<context>
    <name>LocationStatus</name>
    <message>
        <source>Grant Location Permission</source>
        <translation>Standortberechtigung erteilen</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Location access: allowed. Pellory can see the names of networks.</source>
        <translation>Standortzugriff: erlaubt. Pellory kann die Namen von Netzwerken sehen.</translation>
    </message>
    <message>
        <source>Location access: missing. Pellory cannot scan for networks.</source>
        <translation>Standortzugriff: fehlt. Pellory kann nicht nach Netzwerken suchen.</translation>
    </message>
</context>
<context>
    <name>LostDataAlert</name>
    <message>
        <source>Your Data Was Reset</source>
        <translation>Ihre Daten wurden zurückgesetzt</translation>
    </message>
    <message>
        <source>Your Data Was Not Found</source>
        <translation>Ihre Daten wurden nicht gefunden</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Wiederherstellen …</translation>
    </message>
    <message>
        <source>A backup of %1 can be brought back.</source>
        <translation>Eine Sicherung vom %1 kann zurückgeholt werden.</translation>
    </message>
    <message>
        <source>Nothing was restored. %1</source>
        <translation>Nichts wurde wiederhergestellt. %1</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>In the backup: %1 in %2, and your goals and settings. It replaces what is here now, which is kept beside it as Pellory.store.replaced.</source>
        <translation>In der Sicherung: %1 in %2, dazu Ihre Ziele und Einstellungen. Sie ersetzt, was jetzt hier ist; das bleibt daneben als Pellory.store.replaced erhalten.</translation>
    </message>
</context>
<context>
    <name>MarkedProgressBar</name>
    <message>
        <source>%1: reached</source>
        <translation>%1: erreicht</translation>
    </message>
    <message>
        <source>%1: not reached</source>
        <comment>goal on the bar</comment>
        <translation>%1: nicht erreicht</translation>
    </message>
    <message>
        <source>%1 with the planned days</source>
        <translation>%1 mit den geplanten Tagen</translation>
    </message>
    <message>
        <source>%1: reached with the planned days</source>
        <translation>%1: mit den geplanten Tagen erreicht</translation>
    </message>
</context>
<context>
    <name>MessageBoxAlerts</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>MonthTile</name>
    <message numerus="yes">
        <source>%1 %2, %3 of %n workdays in office</source>
        <comment>month and year</comment>
        <translation>
            <numerusform>%1 %2, %3 von %n Arbeitstag im Büro</numerusform>
            <numerusform>%1 %2, %3 von %n Arbeitstagen im Büro</numerusform>
        </translation>
    </message>
    <message>
        <source>%1/%2</source>
        <comment>days in the office, and workdays</comment>
        <translation>%1/%2</translation>
    </message>
</context>
<context>
    <name>MonthView</name>
    <message>
        <source>Last Month</source>
        <translation>Voriger Monat</translation>
    </message>
    <message>
        <source>Next Month</source>
        <translation>Nächster Monat</translation>
    </message>
</context>
<context>
    <name>NavigationRow</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
</context>
<context>
    <name>NetworkList</name>
    <message>
        <source>(empty name)</source>
        <translation>(leerer Name)</translation>
    </message>
</context>
<context>
    <name>NetworkManagerWiFiClient</name>
    <message>
        <source>The Wi-Fi interface %1 is no longer there.</source>
        <translation>Die WLAN-Schnittstelle %1 ist nicht mehr da.</translation>
    </message>
    <message>
        <source>NetworkManager is not running, and without it Pellory cannot see which networks are in range.</source>
        <translation>NetworkManager läuft nicht, und ohne ihn kann Pellory nicht sehen, welche Netzwerke in Reichweite sind.</translation>
    </message>
    <message>
        <source>NetworkManager did not complete the scan. It may have been stopped or restarted.</source>
        <translation>NetworkManager hat die Suche nicht abgeschlossen. Vielleicht wurde er beendet oder neu gestartet.</translation>
    </message>
</context>
<context>
    <name>OpenDaysLine</name>
    <message>
        <source>Review</source>
        <translation>Durchgehen</translation>
    </message>
    <message>
        <source>1 past workday is unmarked</source>
        <translation>1 vergangener Arbeitstag ist offen</translation>
    </message>
    <message numerus="yes">
        <source>%n past workdays are unmarked</source>
        <translation>
            <numerusform>%n vergangener Arbeitstag ist offen</numerusform>
            <numerusform>%n vergangene Arbeitstage sind offen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OpenDaysReview</name>
    <message>
        <source>Skip This Day</source>
        <translation>Diesen Tag überspringen</translation>
    </message>
    <message numerus="yes">
        <source>Set All %n to %1</source>
        <extracomment>The number of days, and a state.</extracomment>
        <translation>
            <numerusform>Alle %n auf „%1“ setzen</numerusform>
            <numerusform>Alle %n auf „%1“ setzen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OtherKind</name>
    <message>
        <source>This could not be saved. Try again later.</source>
        <translation>Das konnte nicht gespeichert werden. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Out of Office As</source>
        <translation>Nicht im Büro, und zwar</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>PelloryApp</name>
    <message>
        <source>Cannot start Pellory Tracker</source>
        <translation>Pellory kann nicht starten</translation>
    </message>
    <message>
        <source>Could not create app directory: %1</source>
        <translation>Der Ordner der App konnte nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>Fatal Error</source>
        <translation>Schwerwiegender Fehler</translation>
    </message>
    <message>
        <source>Cannot read app swift data store. You do not have read permissions on %1. Fix the permissions and restart the app.</source>
        <translation>Der Datenspeicher der App kann nicht gelesen werden: Für %1 fehlt die Leseberechtigung. Bitte die Berechtigung ändern und die App neu starten.</translation>
    </message>
    <message>
        <source>Could not load data store at %1. %2</source>
        <translation>Der Datenspeicher %1 konnte nicht geladen werden. %2</translation>
    </message>
    <message>
        <source>Delete File?</source>
        <translation>Datei löschen?</translation>
    </message>
    <message>
        <source>Could not load the app&apos;s data store. It&apos;s probably corrupted. Do you want reset all the app&apos;s data? You will lose all data. This action cannot be undone.</source>
        <translation>Der Datenspeicher der App konnte nicht geladen werden. Vermutlich ist er beschädigt. Sollen alle Daten der App zurückgesetzt werden? Dabei gehen alle Daten verloren. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Could not remove app data store: %1</source>
        <translation>Der Datenspeicher der App konnte nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>Pellory is running already</source>
        <translation>Pellory läuft bereits</translation>
    </message>
    <message>
        <source>Another Pellory is using your data, perhaps in another session, and cannot be reached from here. Two programs would erase each other&apos;s marks. Use its window, or end it and start Pellory again.</source>
        <translation>Ein anderes Pellory benutzt Ihre Daten, vielleicht in einer anderen Sitzung, und ist von hier aus nicht erreichbar. Zwei Programme würden sich gegenseitig die Einträge überschreiben. Benutzen Sie dessen Fenster, oder beenden Sie es und starten Sie Pellory neu.</translation>
    </message>
    <message>
        <source>Waiting for Your Data</source>
        <translation>Warten auf Ihre Daten</translation>
    </message>
    <message>
        <source>Another program is using the data store. Pellory starts as soon as it is free.</source>
        <translation>Ein anderes Programm benutzt den Datenspeicher. Pellory startet, sobald er frei ist.</translation>
    </message>
    <message>
        <source>This does not mean that your data is damaged. Choose Cancel to keep it.</source>
        <translation>Das bedeutet nicht, dass Ihre Daten beschädigt sind. Mit „Abbrechen“ behalten Sie sie.</translation>
    </message>
</context>
<context>
    <name>PlanGrid</name>
    <message>
        <source>%1 free</source>
        <comment>days of a week</comment>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The number of days in a week that can still be planned, as the head of a narrow column.</extracomment>
        <translation>Frei</translation>
    </message>
</context>
<context>
    <name>PlanPopover</name>
    <message>
        <source>Nothing was planned, because the data file cannot be read. Try again, or restart Pellory.</source>
        <translation>Nichts wurde geplant, weil die Datendatei nicht gelesen werden kann. Versuchen Sie es noch einmal, oder starten Sie Pellory neu.</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>A date, in the format of QLocale::toString(). Put words in single quotes: &apos;the&apos; d.</extracomment>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>Ended on %1</source>
        <translation>Endete am %1</translation>
    </message>
    <message>
        <source>Plan until %1</source>
        <translation>Plan bis %1</translation>
    </message>
    <message>
        <source>Fill with My Usual Days</source>
        <translation>Übliche Tage einplanen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>None of your usual days is left to plan</source>
        <translation>Von Ihren üblichen Tagen ist keiner mehr einzuplanen</translation>
    </message>
</context>
<context>
    <name>PlanTexts</name>
    <message>
        <source>No workday is left to plan</source>
        <translation>Kein Arbeitstag ist mehr zu planen</translation>
    </message>
    <message>
        <source>Even with the last workday it is **%1** short</source>
        <translation>Auch mit dem letzten Arbeitstag fehlen noch **%1**</translation>
    </message>
    <message>
        <source>Even with all **%1** workdays left it is **%2** short</source>
        <translation>Auch mit allen **%1** übrigen Arbeitstagen fehlen noch **%2**</translation>
    </message>
    <message>
        <source>The **1** free workday left is needed</source>
        <translation>Der **1** freie Arbeitstag, der bleibt, wird gebraucht</translation>
    </message>
    <message>
        <source>**%1** of the **%2** free workdays left</source>
        <translation>Noch **%1** der **%2** freien Arbeitstage</translation>
    </message>
    <message>
        <source>**%1** of the **%2** free workdays left: less than one a week</source>
        <extracomment>Of a few days in many weeks.</extracomment>
        <translation>Noch **%1** der **%2** freien Arbeitstage: weniger als einer pro Woche</translation>
    </message>
    <message>
        <source>**%1** of the **%2** free workdays left: about **%3** a week</source>
        <extracomment>&quot;4 of the 9 free workdays left: about 2 a week&quot;</extracomment>
        <translation>Noch **%1** der **%2** freien Arbeitstage: etwa **%3** pro Woche</translation>
    </message>
    <message>
        <source>The planned days are enough</source>
        <translation>Die geplanten Tage reichen</translation>
    </message>
    <message>
        <source>No more days are needed</source>
        <translation>Weitere Tage sind nicht nötig</translation>
    </message>
    <message>
        <source>None of the workdays left may be out of office</source>
        <translation>Keiner der übrigen Arbeitstage darf außerhalb des Büros sein</translation>
    </message>
    <message>
        <source>**%1** of the **%2** workdays left may be out of office</source>
        <translation>Außerhalb des Büros erlaubt: **%1** der **%2** übrigen Arbeitstage</translation>
    </message>
    <message>
        <source>No more days are allowed</source>
        <translation>Kein Tag mehr ist erlaubt</translation>
    </message>
    <message>
        <source>**1** more day is allowed</source>
        <translation>Noch **1** Tag ist erlaubt</translation>
    </message>
    <message>
        <source>**%1** more days are allowed</source>
        <translation>Noch **%1** Tage sind erlaubt</translation>
    </message>
    <message>
        <source>No more days are allowed besides the planned ones</source>
        <translation>Neben den geplanten Tagen ist keiner mehr erlaubt</translation>
    </message>
    <message>
        <source>**1** more day is allowed besides the planned ones</source>
        <translation>Neben den geplanten ist noch **1** Tag erlaubt</translation>
    </message>
    <message>
        <source>**%1** more days are allowed besides the planned ones</source>
        <translation>Neben den geplanten sind noch **%1** Tage erlaubt</translation>
    </message>
    <message>
        <source>**1** more day is planned than allowed</source>
        <translation>**1** Tag mehr geplant als erlaubt</translation>
    </message>
    <message>
        <source>**%1** more days are planned than allowed</source>
        <translation>**%1** Tage mehr geplant als erlaubt</translation>
    </message>
    <message>
        <source>**1** more day is planned than needed</source>
        <translation>**1** Tag mehr geplant als nötig</translation>
    </message>
    <message>
        <source>**%1** more days are planned than needed</source>
        <translation>**%1** Tage mehr geplant als nötig</translation>
    </message>
</context>
<context>
    <name>ProgressWidgetView</name>
    <message>
        <source>Progress of the quarter</source>
        <translation>Fortschritt im Quartal</translation>
    </message>
    <message>
        <source>Progress of %1</source>
        <comment>month</comment>
        <translation>Fortschritt im %1</translation>
    </message>
</context>
<context>
    <name>PublicHolidays</name>
    <message>
        <source>Austria</source>
        <translation>Österreich</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>Belgien</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Kanada</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Frankreich</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Deutschland</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Irland</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>Luxemburg</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Niederlande</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Schweiz</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Vereinigtes Königreich</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>Vereinigte Staaten</translation>
    </message>
    <message>
        <source>Alsace and Moselle</source>
        <translation>Elsass und Moselle</translation>
    </message>
    <message>
        <source>Appenzell Ausserrhoden</source>
        <translation>Appenzell Ausserrhoden</translation>
    </message>
    <message>
        <source>Appenzell Innerrhoden</source>
        <translation>Appenzell Innerrhoden</translation>
    </message>
    <message>
        <source>Baden-Württemberg</source>
        <translation>Baden-Württemberg</translation>
    </message>
    <message>
        <source>Basel-City</source>
        <translation>Basel-Stadt</translation>
    </message>
    <message>
        <source>Basel-Country</source>
        <translation>Basel-Landschaft</translation>
    </message>
    <message>
        <source>Bavaria</source>
        <translation>Bayern</translation>
    </message>
    <message>
        <source>Bavaria without Assumption Day</source>
        <translation>Bayern ohne Mariä Himmelfahrt</translation>
    </message>
    <message>
        <source>Berlin</source>
        <translation>Berlin</translation>
    </message>
    <message>
        <source>Bern</source>
        <translation>Bern</translation>
    </message>
    <message>
        <source>Brandenburg</source>
        <translation>Brandenburg</translation>
    </message>
    <message>
        <source>Bremen</source>
        <translation>Bremen</translation>
    </message>
    <message>
        <source>England and Wales</source>
        <translation>England und Wales</translation>
    </message>
    <message>
        <source>Geneva</source>
        <translation>Genf</translation>
    </message>
    <message>
        <source>Hamburg</source>
        <translation>Hamburg</translation>
    </message>
    <message>
        <source>Hesse</source>
        <translation>Hessen</translation>
    </message>
    <message>
        <source>Jura</source>
        <translation>Jura</translation>
    </message>
    <message>
        <source>Lower Saxony</source>
        <translation>Niedersachsen</translation>
    </message>
    <message>
        <source>Lucerne</source>
        <translation>Luzern</translation>
    </message>
    <message>
        <source>Mecklenburg-Western Pomerania</source>
        <translation>Mecklenburg-Vorpommern</translation>
    </message>
    <message>
        <source>Neuchâtel</source>
        <translation>Neuenburg</translation>
    </message>
    <message>
        <source>Nidwalden</source>
        <translation>Nidwalden</translation>
    </message>
    <message>
        <source>North Rhine-Westphalia</source>
        <translation>Nordrhein-Westfalen</translation>
    </message>
    <message>
        <source>Northern Ireland</source>
        <translation>Nordirland</translation>
    </message>
    <message>
        <source>Obwalden</source>
        <translation>Obwalden</translation>
    </message>
    <message>
        <source>Rhineland-Palatinate</source>
        <translation>Rheinland-Pfalz</translation>
    </message>
    <message>
        <source>Saarland</source>
        <translation>Saarland</translation>
    </message>
    <message>
        <source>Saxony</source>
        <translation>Sachsen</translation>
    </message>
    <message>
        <source>Saxony-Anhalt</source>
        <translation>Sachsen-Anhalt</translation>
    </message>
    <message>
        <source>Schaffhausen</source>
        <translation>Schaffhausen</translation>
    </message>
    <message>
        <source>Schleswig-Holstein</source>
        <translation>Schleswig-Holstein</translation>
    </message>
    <message>
        <source>Schwyz</source>
        <translation>Schwyz</translation>
    </message>
    <message>
        <source>Scotland</source>
        <translation>Schottland</translation>
    </message>
    <message>
        <source>St. Gallen</source>
        <translation>St. Gallen</translation>
    </message>
    <message>
        <source>Thurgau</source>
        <translation>Thurgau</translation>
    </message>
    <message>
        <source>Thuringia</source>
        <translation>Thüringen</translation>
    </message>
    <message>
        <source>Ticino</source>
        <translation>Tessin</translation>
    </message>
    <message>
        <source>Uri</source>
        <translation>Uri</translation>
    </message>
    <message>
        <source>Valais</source>
        <translation>Wallis</translation>
    </message>
    <message>
        <source>Vaud</source>
        <translation>Waadt</translation>
    </message>
    <message>
        <source>Zug</source>
        <translation>Zug</translation>
    </message>
    <message>
        <source>Zurich</source>
        <translation>Zürich</translation>
    </message>
    <message>
        <source>2 January</source>
        <translation>2. Januar</translation>
    </message>
    <message>
        <source>All Saints&apos; Day</source>
        <translation>Allerheiligen</translation>
    </message>
    <message>
        <source>Anniversary of the 1953 Uprising</source>
        <translation>Jahrestag des Volksaufstandes von 1953</translation>
    </message>
    <message>
        <source>Armistice Day</source>
        <translation>Waffenstillstandstag</translation>
    </message>
    <message>
        <source>Ascension Day</source>
        <translation>Christi Himmelfahrt</translation>
    </message>
    <message>
        <source>Assumption Day</source>
        <translation>Mariä Himmelfahrt</translation>
    </message>
    <message>
        <source>August Bank Holiday</source>
        <translation>August Bank Holiday</translation>
    </message>
    <message>
        <source>Bastille Day</source>
        <translation>Französischer Nationalfeiertag</translation>
    </message>
    <message>
        <source>Battle of the Boyne</source>
        <translation>Schlacht am Boyne</translation>
    </message>
    <message>
        <source>Berchtold&apos;s Day</source>
        <translation>Berchtoldstag</translation>
    </message>
    <message>
        <source>Boxing Day</source>
        <translation>2. Weihnachtstag</translation>
    </message>
    <message>
        <source>Canada Day</source>
        <translation>Canada Day</translation>
    </message>
    <message>
        <source>Christmas Day</source>
        <translation>1. Weihnachtstag</translation>
    </message>
    <message>
        <source>Columbus Day</source>
        <translation>Kolumbus-Tag</translation>
    </message>
    <message>
        <source>Coronation of King Charles III</source>
        <translation>Krönung von König Charles III.</translation>
    </message>
    <message>
        <source>Corpus Christi</source>
        <translation>Fronleichnam</translation>
    </message>
    <message>
        <source>Day of German Unity</source>
        <translation>Tag der Deutschen Einheit</translation>
    </message>
    <message>
        <source>Day of Remembrance and Recognition</source>
        <translation>Tag des Gedenkens und der Anerkennung</translation>
    </message>
    <message>
        <source>Day of Repentance and Prayer</source>
        <translation>Buß- und Bettag</translation>
    </message>
    <message>
        <source>Diamond Jubilee</source>
        <translation>Diamantenes Thronjubiläum</translation>
    </message>
    <message>
        <source>Early May Bank Holiday</source>
        <translation>Early May Bank Holiday</translation>
    </message>
    <message>
        <source>Easter Monday</source>
        <translation>Ostermontag</translation>
    </message>
    <message>
        <source>Easter Sunday</source>
        <translation>Ostersonntag</translation>
    </message>
    <message>
        <source>Epiphany</source>
        <translation>Heilige Drei Könige</translation>
    </message>
    <message>
        <source>Europe Day</source>
        <translation>Europatag</translation>
    </message>
    <message>
        <source>Fast of Geneva</source>
        <translation>Genfer Bettag</translation>
    </message>
    <message>
        <source>Federal Fast Monday</source>
        <translation>Bettagsmontag</translation>
    </message>
    <message>
        <source>Golden Jubilee</source>
        <translation>Goldenes Thronjubiläum</translation>
    </message>
    <message>
        <source>Good Friday</source>
        <translation>Karfreitag</translation>
    </message>
    <message>
        <source>Immaculate Conception</source>
        <translation>Mariä Empfängnis</translation>
    </message>
    <message>
        <source>Independence Day</source>
        <translation>Unabhängigkeitstag</translation>
    </message>
    <message>
        <source>International Women&apos;s Day</source>
        <translation>Frauentag</translation>
    </message>
    <message>
        <source>June Bank Holiday</source>
        <translation>June Bank Holiday</translation>
    </message>
    <message>
        <source>Juneteenth</source>
        <translation>Juneteenth</translation>
    </message>
    <message>
        <source>King&apos;s Day</source>
        <translation>Königstag</translation>
    </message>
    <message>
        <source>Labor Day</source>
        <translation>Labor Day</translation>
    </message>
    <message>
        <source>Labour Day</source>
        <translation>Tag der Arbeit</translation>
    </message>
    <message>
        <source>Liberation Day</source>
        <translation>Tag der Befreiung</translation>
    </message>
    <message>
        <source>Martin Luther King Jr. Day</source>
        <translation>Martin-Luther-King-Tag</translation>
    </message>
    <message>
        <source>May Day</source>
        <translation>May Day</translation>
    </message>
    <message>
        <source>Memorial Day</source>
        <translation>Memorial Day</translation>
    </message>
    <message>
        <source>National Day</source>
        <translation>Nationalfeiertag</translation>
    </message>
    <message>
        <source>National Day for Truth and Reconciliation</source>
        <translation>Tag der Wahrheit und Versöhnung</translation>
    </message>
    <message>
        <source>New Year&apos;s Day</source>
        <translation>Neujahr</translation>
    </message>
    <message>
        <source>October Bank Holiday</source>
        <translation>October Bank Holiday</translation>
    </message>
    <message>
        <source>Platinum Jubilee</source>
        <translation>Platin-Thronjubiläum</translation>
    </message>
    <message>
        <source>Queen&apos;s Day</source>
        <translation>Königinnentag</translation>
    </message>
    <message>
        <source>Reformation Day</source>
        <translation>Reformationstag</translation>
    </message>
    <message>
        <source>Remembrance Day</source>
        <translation>Remembrance Day</translation>
    </message>
    <message>
        <source>Republic Day</source>
        <translation>Tag der Republik</translation>
    </message>
    <message>
        <source>Restoration of the Republic</source>
        <translation>Wiederherstellung der Republik</translation>
    </message>
    <message>
        <source>Second Day of Christmas</source>
        <translation>2. Weihnachtstag</translation>
    </message>
    <message>
        <source>Spring Bank Holiday</source>
        <translation>Spring Bank Holiday</translation>
    </message>
    <message>
        <source>St Andrew&apos;s Day</source>
        <translation>Andreastag</translation>
    </message>
    <message>
        <source>St Brigid&apos;s Day</source>
        <translation>Brigidstag</translation>
    </message>
    <message>
        <source>St Joseph&apos;s Day</source>
        <translation>Josefstag</translation>
    </message>
    <message>
        <source>St Nicholas of Flüe</source>
        <translation>Bruder Klaus</translation>
    </message>
    <message>
        <source>St Patrick&apos;s Day</source>
        <translation>St. Patrick’s Day</translation>
    </message>
    <message>
        <source>St Peter and St Paul</source>
        <translation>Peter und Paul</translation>
    </message>
    <message>
        <source>St Stephen&apos;s Day</source>
        <translation>Stephanstag</translation>
    </message>
    <message>
        <source>State Funeral of Queen Elizabeth II</source>
        <translation>Staatsbegräbnis von Königin Elisabeth II.</translation>
    </message>
    <message>
        <source>Summer Bank Holiday</source>
        <translation>Summer Bank Holiday</translation>
    </message>
    <message>
        <source>Swiss National Day</source>
        <translation>Bundesfeier</translation>
    </message>
    <message>
        <source>Thanksgiving Day</source>
        <translation>Thanksgiving</translation>
    </message>
    <message>
        <source>Veterans Day</source>
        <translation>Veterans Day</translation>
    </message>
    <message>
        <source>Victoria Day</source>
        <translation>Victoria Day</translation>
    </message>
    <message>
        <source>Victory Day</source>
        <translation>Tag des Sieges</translation>
    </message>
    <message>
        <source>Washington&apos;s Birthday</source>
        <translation>Washingtons Geburtstag</translation>
    </message>
    <message>
        <source>Wedding of Prince William</source>
        <translation>Hochzeit von Prinz William</translation>
    </message>
    <message>
        <source>Whit Monday</source>
        <translation>Pfingstmontag</translation>
    </message>
    <message>
        <source>Whit Sunday</source>
        <translation>Pfingstsonntag</translation>
    </message>
    <message>
        <source>World Children&apos;s Day</source>
        <translation>Weltkindertag</translation>
    </message>
    <message>
        <source>World Cup Bank Holiday</source>
        <translation>WM-Feiertag</translation>
    </message>
    <message>
        <source>%1 (substitute)</source>
        <translation>%1 (Ersatztag)</translation>
    </message>
</context>
<context>
    <name>QuarterStatsView</name>
    <message>
        <source>Q%1</source>
        <comment>a quarter of the year</comment>
        <translation>%1. Quartal</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>quarter and year</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>QuarterView</name>
    <message>
        <source>Last Quarter</source>
        <translation>Voriges Quartal</translation>
    </message>
    <message>
        <source>Next Quarter</source>
        <translation>Nächstes Quartal</translation>
    </message>
</context>
<context>
    <name>RecordCsv</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Day Off</source>
        <translation>Freier Tag</translation>
    </message>
    <message>
        <source>Workday</source>
        <translation>Arbeitstag</translation>
    </message>
    <message>
        <source>In the Office</source>
        <translation>Im Büro</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Set By</source>
        <translation>Eingetragen durch</translation>
    </message>
    <message>
        <source>Set At</source>
        <translation>Eingetragen am</translation>
    </message>
</context>
<context>
    <name>RecordJob</name>
    <message>
        <source>The folder is not there any more. Choose another one.</source>
        <translation>Den Ordner gibt es nicht mehr. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Pellory may not write there. Choose another folder or name.</source>
        <translation>Pellory darf dort nicht schreiben. Wählen Sie einen anderen Ordner oder Namen.</translation>
    </message>
    <message>
        <source>The disk is full. Choose another folder, or delete files that you do not need any more.</source>
        <translation>Der Datenträger ist voll. Wählen Sie einen anderen Ordner oder löschen Sie Dateien, die Sie nicht mehr brauchen.</translation>
    </message>
    <message>
        <source>The disk did not take the file. Choose another folder.</source>
        <translation>Der Datenträger hat die Datei nicht angenommen. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>There is already a folder or a device with this name. Choose another name.</source>
        <translation>Unter diesem Namen gibt es schon einen Ordner oder ein Gerät. Wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>RecordMonth</name>
    <message>
        <source>ddd d</source>
        <extracomment>A short weekday and the day of the month, in the format of QLocale::toString().</extracomment>
        <translation>ddd d.</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Eingetragen</translation>
    </message>
</context>
<context>
    <name>RecordPaper</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>RecordPdf</name>
    <message>
        <source>Office Days, %1</source>
        <comment>period</comment>
        <translation>Bürotage, %1</translation>
    </message>
    <message>
        <source>Made with Pellory on %1, %2</source>
        <comment>date, time</comment>
        <translation>Erstellt mit Pellory am %1, %2</translation>
    </message>
    <message>
        <source>Date, signature</source>
        <translation>Datum, Unterschrift</translation>
    </message>
    <message>
        <source>Office Days</source>
        <translation>Bürotage</translation>
    </message>
</context>
<context>
    <name>RecordSummary</name>
    <message>
        <source>%1: reached</source>
        <comment>goal</comment>
        <translation>%1: erreicht</translation>
    </message>
    <message>
        <source>%1: %2 more</source>
        <comment>goal, days</comment>
        <translation>%1: noch %2</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Workdays</source>
        <translation>Arbeitstage</translation>
    </message>
    <message>
        <source>In the office</source>
        <translation>Im Büro</translation>
    </message>
    <message>
        <source>Out of office</source>
        <translation>Nicht im Büro</translation>
    </message>
    <message>
        <source>Vacation</source>
        <translation>Urlaub</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Geplant</translation>
    </message>
    <message>
        <source>Days a week</source>
        <translation>Tage pro Woche</translation>
    </message>
    <message>
        <source>Next goal</source>
        <translation>Nächstes Ziel</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Erreicht</translation>
    </message>
    <message>
        <source>Missed by %1</source>
        <translation>Um %1 verfehlt</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>Noch %1</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Days needed</source>
        <translation>Tage nötig</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Goals, over the whole period</source>
        <translation>Ziele, über den ganzen Zeitraum</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <extracomment>A short date in the format of QLocale::toString(). Put words in single quotes: &apos;the&apos; d.</extracomment>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>dates</comment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Gezählt</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>1 workday</source>
        <translation>1 Arbeitstag</translation>
    </message>
    <message>
        <source>%1 in the office</source>
        <translation>%1 im Büro</translation>
    </message>
    <message>
        <source>%1 planned</source>
        <translation>%1 geplant</translation>
    </message>
    <message>
        <source>%1 days a week</source>
        <translation>%1 Tage pro Woche</translation>
    </message>
    <message>
        <source>How days count</source>
        <translation>Wie Tage zählen</translation>
    </message>
</context>
<context>
    <name>RecordTexts</name>
    <message>
        <source>Monday to Friday</source>
        <translation>Montag bis Freitag</translation>
    </message>
    <message>
        <source>none</source>
        <comment>workdays</comment>
        <translation>keine</translation>
    </message>
    <message>
        <source>Workdays: Monday to Friday.</source>
        <translation>Arbeitstage: Montag bis Freitag.</translation>
    </message>
    <message>
        <source>Workdays from %1 on: %2.</source>
        <comment>date, weekdays</comment>
        <translation>Arbeitstage ab %1: %2.</translation>
    </message>
    <message>
        <source>Vacation days count as in the office.</source>
        <translation>Urlaubstage zählen wie im Büro.</translation>
    </message>
    <message>
        <source>Vacation days are left out of the workdays.</source>
        <translation>Urlaubstage zählen nicht als Arbeitstage.</translation>
    </message>
    <message>
        <source>Vacation days are workdays that are not in the office.</source>
        <translation>Urlaubstage sind Arbeitstage, die nicht im Büro sind.</translation>
    </message>
    <message>
        <source>There are no days off in this period.</source>
        <translation>In diesem Zeitraum gibt es keine freien Tage.</translation>
    </message>
    <message>
        <source>1 day off in this period is not a workday.</source>
        <translation>1 freier Tag in diesem Zeitraum ist kein Arbeitstag.</translation>
    </message>
    <message numerus="yes">
        <source>%n days off in this period are not workdays.</source>
        <translation>
            <numerusform>%n freier Tag in diesem Zeitraum ist kein Arbeitstag.</numerusform>
            <numerusform>%n freie Tage in diesem Zeitraum sind keine Arbeitstage.</numerusform>
        </translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>A date in the format of QLocale::toString(). Put words in single quotes: &apos;the&apos; d.</extracomment>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>month, year</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Q%1 %2</source>
        <comment>quarter, year</comment>
        <translation>%1. Quartal %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>dates</comment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Office Days %1</source>
        <extracomment>The name of a file; %1 is such as 2026-11.</extracomment>
        <translation>Bürotage %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>state and reason</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Day Off</source>
        <translation>Freier Tag</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Automatically</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Office network %1</source>
        <translation>Büronetz %1</translation>
    </message>
    <message>
        <source>Undone by hand</source>
        <translation>Von Hand rückgängig gemacht</translation>
    </message>
    <message>
        <source>Redone by hand</source>
        <translation>Von Hand wiederholt</translation>
    </message>
    <message>
        <source>Restored from a backup</source>
        <translation>Aus einer Sicherung wiederhergestellt</translation>
    </message>
    <message>
        <source>By a pattern</source>
        <translation>Nach einem Muster</translation>
    </message>
    <message>
        <source>Imported</source>
        <translation>Importiert</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <extracomment>A short date in the format of QLocale::toString(). Put words in single quotes: &apos;the&apos; d.</extracomment>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <comment>who, date, time</comment>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>Out of office for the reason %1: counts as in the office.</source>
        <translation>Nicht im Büro, Art %1: zählt wie im Büro.</translation>
    </message>
    <message>
        <source>Out of office for the reason %1: left out of the workdays.</source>
        <translation>Nicht im Büro, Art %1: zählt nicht als Arbeitstag.</translation>
    </message>
    <message>
        <source>Averages are days in the office per week of five workdays.</source>
        <translation>Durchschnitte sind Bürotage pro Woche mit fünf Arbeitstagen.</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Period</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Erster Tag</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Who set each day, and when</source>
        <translation>Wer jeden Tag eingetragen hat und wann</translation>
    </message>
    <message>
        <source>A line for a signature</source>
        <translation>Eine Zeile für die Unterschrift</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>to</source>
        <comment>between two dates</comment>
        <translation>bis</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>PDF, to print or hand in</source>
        <translation>PDF, zum Drucken oder Abgeben</translation>
    </message>
    <message>
        <source>CSV, for a spreadsheet</source>
        <translation>CSV, für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>A line a day</source>
        <translation>Eine Zeile pro Tag</translation>
    </message>
    <message>
        <source>A grid a month</source>
        <translation>Ein Raster pro Monat</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <comment>name of a file</comment>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was saved.</source>
        <translation>Abgebrochen. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>Nothing was saved. %1</source>
        <translation>Es wurde nichts gespeichert. %1</translation>
    </message>
    <message>
        <source>Other Dates</source>
        <translation>Andere Daten</translation>
    </message>
    <message>
        <source>The last day must not be before the first.</source>
        <translation>Der letzte Tag darf nicht vor dem ersten liegen.</translation>
    </message>
    <message>
        <source>Save Record</source>
        <translation>Nachweis speichern</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>Saving… %1 %</source>
        <translation>Wird gespeichert … %1 %</translation>
    </message>
    <message>
        <source>No program opens such files here. The file is in %1.</source>
        <translation>Hier öffnet kein Programm solche Dateien. Die Datei liegt in %1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>RestoreModel</name>
    <message>
        <source>ddd d MMMM</source>
        <translation>ddd, d. MMMM</translation>
    </message>
    <message>
        <source>All Months</source>
        <translation>Alle Monate</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <comment>date, state now, state in the backup</comment>
        <extracomment>A short date, in the format of QLocale::toString(). Put words in single quotes: &apos;the&apos; d.</extracomment>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>month, year</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>month, number of days</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 marked otherwise here</source>
        <comment>month, number of days</comment>
        <translation>%1: %2, hier anders markiert</translation>
    </message>
</context>
<context>
    <name>RestoreView</name>
    <message>
        <source>Reading the backup...</source>
        <translation>Die Sicherung wird gelesen …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Nothing was restored. %1</source>
        <translation>Nichts wurde wiederhergestellt. %1</translation>
    </message>
    <message>
        <source>Restore the Backup of %1</source>
        <translation>Sicherung vom %1 wiederherstellen</translation>
    </message>
    <message>
        <source>Days that differ</source>
        <translation>Tage, die anders sind</translation>
    </message>
    <message>
        <source>Every day is as it was in this backup. There is nothing to restore.</source>
        <translation>Jeder Tag ist wie in dieser Sicherung. Es gibt nichts wiederherzustellen.</translation>
    </message>
    <message>
        <source>What each day is now, and what it was in the backup. Choose the months to restore. A backup of what is here now is made first.</source>
        <translation>Jeder Tag, wie er jetzt ist und wie er in der Sicherung war. Wählen Sie die Monate, die wiederhergestellt werden sollen. Der jetzige Stand wird vorher gesichert.</translation>
    </message>
    <message>
        <source>Restore 1 Day</source>
        <translation>1 Tag wiederherstellen</translation>
    </message>
    <message numerus="yes">
        <source>Restore %n Days</source>
        <translation>
            <numerusform>%n Tag wiederherstellen</numerusform>
            <numerusform>%n Tage wiederherstellen</numerusform>
        </translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation>Wird wiederhergestellt …</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>RuleEditor</name>
    <message>
        <source>New Rule</source>
        <translation>Neue Regel</translation>
    </message>
    <message>
        <source>Edit Rule</source>
        <translation>Regel bearbeiten</translation>
    </message>
    <message>
        <source>Add Rule</source>
        <translation>Regel hinzufügen</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Schon immer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Earlier months are counted by the changed rule too.</source>
        <translation>Auch frühere Monate zählen nach der geänderten Regel.</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>The rule as it was ends on %1 and keeps its figures.</source>
        <translation>Die bisherige Regel endet am %1 und behält ihre Zahlen.</translation>
    </message>
    <message>
        <source>The rule could not be saved, because your data cannot be read. Try again in a moment.</source>
        <translation>Die Regel konnte nicht gespeichert werden, weil Ihre Daten nicht gelesen werden können. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>When does the change apply?</source>
        <translation>Ab wann gilt die Änderung?</translation>
    </message>
    <message>
        <source>From Today</source>
        <translation>Ab heute</translation>
    </message>
    <message>
        <source>From %1</source>
        <comment>a date</comment>
        <translation>Ab %1</translation>
    </message>
</context>
<context>
    <name>RuleForm</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>At least or at most</source>
        <translation>Mindestens oder höchstens</translation>
    </message>
    <message>
        <source>at least</source>
        <translation>mindestens</translation>
    </message>
    <message>
        <source>at most</source>
        <translation>höchstens</translation>
    </message>
    <message>
        <source>How many</source>
        <translation>Wie viele</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>% of the workdays</source>
        <translation>% der Arbeitstage</translation>
    </message>
    <message>
        <source>days a week on average</source>
        <translation>Tage je Woche</translation>
    </message>
    <message>
        <source>Which days</source>
        <translation>Welche Tage</translation>
    </message>
    <message>
        <source>in the office</source>
        <translation>im Büro</translation>
    </message>
    <message>
        <source>out of office</source>
        <translation>nicht im Büro</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>for any reason</source>
        <translation>aus jedem Grund</translation>
    </message>
    <message>
        <source>for a reason that was removed</source>
        <translation>aus einem gelöschten Grund</translation>
    </message>
    <message>
        <source>Only on</source>
        <translation>Nur am</translation>
    </message>
    <message>
        <source>On any day</source>
        <translation>An jedem Tag</translation>
    </message>
    <message>
        <source>In each</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>two weeks</source>
        <translation>zwei Wochen</translation>
    </message>
    <message>
        <source>month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>Quartal</translation>
    </message>
    <message>
        <source>year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>last weeks</source>
        <translation>die letzten</translation>
    </message>
    <message>
        <source>the first with</source>
        <comment>a date</comment>
        <translation>die erste mit</translation>
    </message>
    <message>
        <source>A day in the first of the two weeks</source>
        <translation>Ein Tag in der ersten der beiden Wochen</translation>
    </message>
    <message>
        <source>beginning in</source>
        <comment>a month</comment>
        <translation>Beginn im</translation>
    </message>
    <message>
        <source>First month</source>
        <translation>Erster Monat</translation>
    </message>
    <message>
        <source>How many weeks</source>
        <translation>Wie viele Wochen</translation>
    </message>
    <message>
        <source>weeks</source>
        <translation>Wochen</translation>
    </message>
    <message>
        <source>First day on which the rule holds</source>
        <translation>Erster Tag, an dem die Regel gilt</translation>
    </message>
    <message>
        <source>always</source>
        <translation>schon immer</translation>
    </message>
    <message>
        <source>Last day on which the rule holds</source>
        <translation>Letzter Tag, an dem die Regel gilt</translation>
    </message>
    <message>
        <source>no end</source>
        <translation>ohne Ende</translation>
    </message>
    <message>
        <source>Holds from</source>
        <translation>Gilt ab</translation>
    </message>
    <message>
        <source>until</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>How many must be a number above 0 and up to %1</source>
        <translation>Die Anzahl muss eine Zahl über 0 und bis %1 sein</translation>
    </message>
    <message>
        <source>Weeks must be a whole number between 1 and %1</source>
        <translation>Die Wochen müssen eine ganze Zahl zwischen 1 und %1 sein</translation>
    </message>
    <message>
        <source>The last day must not be before the first</source>
        <translation>Der letzte Tag darf nicht vor dem ersten liegen</translation>
    </message>
    <message>
        <source>How many must be a number above 0 and up to %1, because an average counts weeks of %1 workdays</source>
        <translation>Die Anzahl muss eine Zahl über 0 und bis %1 sein, denn ein Durchschnitt zählt Wochen mit %1 Arbeitstagen</translation>
    </message>
</context>
<context>
    <name>RulePresets</name>
    <message>
        <source>3 days every week</source>
        <translation>3 Tage in jeder Woche</translation>
    </message>
    <message>
        <source>3 days a week over the last 8 weeks</source>
        <translation>3 Tage pro Woche über die letzten 8 Wochen</translation>
    </message>
    <message>
        <source>4 days a week on average over a month</source>
        <translation>Im Monat durchschnittlich 4 Tage pro Woche</translation>
    </message>
    <message>
        <source>2 days in two weeks</source>
        <translation>2 Tage in zwei Wochen</translation>
    </message>
    <message>
        <source>Half of two weeks</source>
        <translation>Die Hälfte von zwei Wochen</translation>
    </message>
    <message>
        <source>12 days a month</source>
        <translation>12 Tage im Monat</translation>
    </message>
    <message>
        <source>60 % of the workdays of a month</source>
        <translation>60 % der Arbeitstage eines Monats</translation>
    </message>
    <message>
        <source>Two Fridays a month</source>
        <translation>Zwei Freitage im Monat</translation>
    </message>
    <message>
        <source>10 days a quarter</source>
        <translation>10 Tage im Quartal</translation>
    </message>
    <message>
        <source>39 days a quarter, quarters from May</source>
        <translation>39 Tage im Quartal, Quartale ab Mai</translation>
    </message>
    <message>
        <source>75 % of the workdays of a quarter</source>
        <translation>75 % der Arbeitstage eines Quartals</translation>
    </message>
    <message>
        <source>At most half of two weeks out of office</source>
        <translation>Höchstens die Hälfte von zwei Wochen nicht im Büro</translation>
    </message>
    <message>
        <source>At most 34 days abroad a year</source>
        <translation>Höchstens 34 Tage im Jahr im Ausland</translation>
    </message>
    <message>
        <source>Abroad</source>
        <comment>kind of absence</comment>
        <translation>Ausland</translation>
    </message>
</context>
<context>
    <name>RuleSummary</name>
    <message>
        <source>%1 (counted from %2)</source>
        <extracomment>After &quot;each quarter&quot;, &quot;of each year&quot; and so on; %2 is a month.</extracomment>
        <translation>%1 (ab %2 gezählt)</translation>
    </message>
    <message>
        <source>every two weeks</source>
        <translation>in je zwei Wochen</translation>
    </message>
    <message>
        <source>each month</source>
        <translation>in jedem Monat</translation>
    </message>
    <message>
        <source>each quarter</source>
        <translation>in jedem Quartal</translation>
    </message>
    <message>
        <source>each year</source>
        <translation>in jedem Jahr</translation>
    </message>
    <message>
        <source>over the last week</source>
        <translation>über die letzte Woche</translation>
    </message>
    <message numerus="yes">
        <source>over the last %n weeks</source>
        <translation>
            <numerusform>über die letzten %n Wochen</numerusform>
            <numerusform>über die letzten %n Wochen</numerusform>
        </translation>
    </message>
    <message>
        <source>each week</source>
        <translation>in jeder Woche</translation>
    </message>
    <message>
        <source>of every two weeks</source>
        <translation>von je zwei Wochen</translation>
    </message>
    <message>
        <source>of each month</source>
        <translation>jedes Monats</translation>
    </message>
    <message>
        <source>of each quarter</source>
        <translation>jedes Quartals</translation>
    </message>
    <message>
        <source>of each year</source>
        <translation>jedes Jahres</translation>
    </message>
    <message>
        <source>of the last week</source>
        <translation>der letzten Woche</translation>
    </message>
    <message numerus="yes">
        <source>of the last %n weeks</source>
        <translation>
            <numerusform>der letzten %n Wochen</numerusform>
            <numerusform>der letzten %n Wochen</numerusform>
        </translation>
    </message>
    <message>
        <source>of each week</source>
        <translation>jeder Woche</translation>
    </message>
    <message>
        <source>%1 out of office</source>
        <translation>%1 nicht im Büro</translation>
    </message>
    <message>
        <source>a kind that was removed</source>
        <translation>eine entfernte Art</translation>
    </message>
    <message>
        <source>%1 out of office (%2)</source>
        <extracomment>%2 is a kind of absence.</extracomment>
        <translation>%1 nicht im Büro (%2)</translation>
    </message>
    <message>
        <source>1 day</source>
        <extracomment>%L1 in place of %1 writes the number as the person&apos;s locale has it.</extracomment>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%L1 Tage</translation>
    </message>
    <message>
        <source>%1 % of the workdays %2</source>
        <extracomment>%L1 in place of %1 writes the number as the person&apos;s locale has it. %2 is such as &quot;of each month&quot;.</extracomment>
        <translation>%L1 % der Arbeitstage %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>&quot;3 days each month&quot;</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 a week on average, %2</source>
        <extracomment>&quot;3 days a week on average, each month&quot;</extracomment>
        <translation>%1 pro Woche im Durchschnitt, %2</translation>
    </message>
    <message>
        <source>Mondays to Fridays</source>
        <translation>montags bis freitags</translation>
    </message>
    <message>
        <source>Mondays</source>
        <translation>montags</translation>
    </message>
    <message>
        <source>Tuesdays</source>
        <translation>dienstags</translation>
    </message>
    <message>
        <source>Wednesdays</source>
        <translation>mittwochs</translation>
    </message>
    <message>
        <source>Thursdays</source>
        <translation>donnerstags</translation>
    </message>
    <message>
        <source>Fridays</source>
        <translation>freitags</translation>
    </message>
    <message>
        <source>Saturdays</source>
        <translation>samstags</translation>
    </message>
    <message>
        <source>Sundays</source>
        <translation>sonntags</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>%1, from %2 to %3</source>
        <translation>%1, vom %2 bis %3</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <translation>%1, ab %2</translation>
    </message>
    <message>
        <source>%1, until %2</source>
        <translation>%1, bis %2</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>Höchstens %1</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Mindestens %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <extracomment>&quot;3 days each month on Fridays&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>RuleTexts</name>
    <message>
        <source>d MMMM</source>
        <translation>d. MMMM</translation>
    </message>
    <message>
        <source>%1 too many</source>
        <translation>%1 zu viel</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Eingehalten</translation>
    </message>
    <message>
        <source>None left until %1</source>
        <translation>Keine mehr bis %1</translation>
    </message>
    <message>
        <source>%1 more allowed until %2</source>
        <translation>Noch %1 erlaubt bis %2</translation>
    </message>
    <message>
        <source>%1 more by %2, 1 workday left</source>
        <translation>Noch %1 bis %2, 1 Arbeitstag übrig</translation>
    </message>
    <message>
        <source>%1 more by %2, %3 workdays left</source>
        <translation>Noch %1 bis %2, %3 Arbeitstage übrig</translation>
    </message>
    <message>
        <source>%1 of %2 pairs of weeks</source>
        <translation>%1 von %2 Doppelwochen</translation>
    </message>
    <message>
        <source>%1 of %2 months</source>
        <translation>%1 von %2 Monaten</translation>
    </message>
    <message>
        <source>%1 of %2 quarters</source>
        <translation>%1 von %2 Quartalen</translation>
    </message>
    <message>
        <source>%1 of %2 years</source>
        <translation>%1 von %2 Jahren</translation>
    </message>
    <message>
        <source>%1 of %2 weeks</source>
        <translation>%1 von %2 Wochen</translation>
    </message>
    <message>
        <source>%1 of at most 1 day</source>
        <translation>%1 von höchstens 1 Tag</translation>
    </message>
    <message>
        <source>%1 of 1 day</source>
        <translation>%1 von 1 Tag</translation>
    </message>
    <message numerus="yes">
        <source>%1 of at most %n days</source>
        <translation>
            <numerusform>%1 von höchstens %n Tag</numerusform>
            <numerusform>%1 von höchstens %n Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n days</source>
        <translation>
            <numerusform>%1 von %n Tag</numerusform>
            <numerusform>%1 von %n Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Erreicht</translation>
    </message>
    <message>
        <source>Reached with the planned days</source>
        <translation>Mit den geplanten Tagen erreicht</translation>
    </message>
    <message>
        <source>Missed by %1</source>
        <translation>Um %1 verfehlt</translation>
    </message>
    <message>
        <source>Cannot be reached any more (%1 short)</source>
        <translation>Nicht mehr erreichbar (%1 zu wenig)</translation>
    </message>
    <message>
        <source>Kept in %1</source>
        <translation>In %1 eingehalten</translation>
    </message>
    <message>
        <source>Reached in %1</source>
        <translation>In %1 erreicht</translation>
    </message>
    <message>
        <source>Cannot be reached: no %1 is a workday</source>
        <extracomment>&quot;no Friday is a workday&quot;</extracomment>
        <translation>Nicht erreichbar: Kein %1 ist ein Arbeitstag</translation>
    </message>
    <message>
        <source>Cannot be reached: none of the days is a workday</source>
        <translation>Nicht erreichbar: Keiner der Tage ist ein Arbeitstag</translation>
    </message>
    <message>
        <source>Cannot be reached: only 1 workday (%1 short)</source>
        <translation>Nicht erreichbar: nur 1 Arbeitstag (%1 zu wenig)</translation>
    </message>
    <message>
        <source>Cannot be reached: only %1 workdays (%2 short)</source>
        <translation>Nicht erreichbar: nur %1 Arbeitstage (%2 zu wenig)</translation>
    </message>
    <message>
        <source>No workdays in this period</source>
        <translation>Keine Arbeitstage in diesem Zeitraum</translation>
    </message>
</context>
<context>
    <name>RulesView</name>
    <message>
        <source>No rules</source>
        <translation>Keine Regeln</translation>
    </message>
    <message>
        <source>Add Rule</source>
        <translation>Regel hinzufügen</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>What your employer asks for. How far each rule is met is shown below the progress trackers.</source>
        <translation>Was Ihr Arbeitgeber verlangt. Unter der Fortschrittsanzeige steht, wie weit jede Regel erfüllt ist.</translation>
    </message>
    <message>
        <source>Edit the rule %1</source>
        <translation>Regel %1 bearbeiten</translation>
    </message>
    <message>
        <source>Remove the rule %1</source>
        <translation>Regel %1 entfernen</translation>
    </message>
    <message>
        <source>Own Rule...</source>
        <translation>Eigene Regel ...</translation>
    </message>
</context>
<context>
    <name>RunningProgram</name>
    <message>
        <source>Pellory is running, but does not answer: %1</source>
        <translation>Pellory läuft, antwortet aber nicht: %1</translation>
    </message>
</context>
<context>
    <name>SaveAlert</name>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Use File on Disk</source>
        <translation>Datei verwenden</translation>
    </message>
    <message>
        <source>Keep What Is Shown</source>
        <translation>Angezeigtes behalten</translation>
    </message>
    <message>
        <source>Changes Not Saved</source>
        <translation>Änderungen nicht gespeichert</translation>
    </message>
    <message>
        <source>Data File Missing</source>
        <translation>Datendatei fehlt</translation>
    </message>
    <message>
        <source>Data File Replaced</source>
        <translation>Datendatei ersetzt</translation>
    </message>
    <message>
        <source>%1 Pellory keeps trying. If it ends first, your last changes are lost.</source>
        <translation>%1 Pellory versucht es weiter. Wird es vorher beendet, gehen die letzten Änderungen verloren.</translation>
    </message>
    <message>
        <source>%1 has been moved or deleted. Put it back, or keep what is shown in a new file. Nothing is saved until then.</source>
        <translation>%1 wurde verschoben oder gelöscht. Bitte zurücklegen oder das Angezeigte in einer neuen Datei behalten. Bis dahin wird nichts gespeichert.</translation>
    </message>
    <message>
        <source>Another program has replaced or changed %1. Nothing is saved until you choose. If you keep what is shown, the file on disk stays under another name.</source>
        <translation>Ein anderes Programm hat %1 ersetzt oder geändert. Bis zur Entscheidung wird nichts gespeichert. Wird das Angezeigte behalten, bleibt die Datei unter anderem Namen erhalten.</translation>
    </message>
    <message>
        <source>If you use the file on disk, your last changes are lost.</source>
        <translation>Wird die Datei verwendet, gehen die letzten Änderungen verloren.</translation>
    </message>
</context>
<context>
    <name>ScriptService</name>
    <message>
        <source>Automatic tracking is off, or set-up is not finished.</source>
        <translation>Die automatische Erfassung ist aus, oder die Einrichtung ist nicht abgeschlossen.</translation>
    </message>
</context>
<context>
    <name>SearchProvider</name>
    <message>
        <source>office attendance days needed workdays goals today quarter month</source>
        <extracomment>Words under which a search of the desktop finds the program, with spaces between them.</extracomment>
        <translation>Büro Anwesenheit Tage nötig fehlen Arbeitstage Ziele heute Quartal Monat</translation>
    </message>
    <message>
        <source>Today: %1</source>
        <comment>a state</comment>
        <translation>Heute: %1</translation>
    </message>
</context>
<context>
    <name>SelectedDays</name>
    <message numerus="yes">
        <source>Set %n Days</source>
        <translation>
            <numerusform>%n Tag setzen</numerusform>
            <numerusform>%n Tage setzen</numerusform>
        </translation>
    </message>
    <message>
        <source>Set 1 Workday</source>
        <translation>1 Arbeitstag setzen</translation>
    </message>
    <message numerus="yes">
        <source>Set %n Workdays</source>
        <translation>
            <numerusform>%n Arbeitstag setzen</numerusform>
            <numerusform>%n Arbeitstage setzen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days selected</source>
        <translation>
            <numerusform>%n Tag ausgewählt</numerusform>
            <numerusform>%n Tage ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>1 workday selected</source>
        <translation>1 Arbeitstag ausgewählt</translation>
    </message>
    <message numerus="yes">
        <source>%n workdays selected</source>
        <translation>
            <numerusform>%n Arbeitstag ausgewählt</numerusform>
            <numerusform>%n Arbeitstage ausgewählt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Settings page</source>
        <translation>Seite der Einstellungen</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>Office Networks</source>
        <translation>Büronetzwerke</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Please enable location access in %1</source>
        <translation>Bitte den Standortzugriff in den %1 erlauben</translation>
    </message>
    <message>
        <source>Location Settings</source>
        <translation>Standorteinstellungen</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Counting</source>
        <translation>Zählweise</translation>
    </message>
</context>
<context>
    <name>SsidSettingsView</name>
    <message>
        <source>Wi-Fi tracking is enabled, but Wi-Fi is turned off.</source>
        <translation>Die Erfassung per WLAN ist eingeschaltet, aber das WLAN ist aus.</translation>
    </message>
    <message>
        <source>Turn on Wi-Fi in MacOS to allow tracking.</source>
        <translation>Für die Erfassung bitte das WLAN einschalten.</translation>
    </message>
    <message>
        <source>Wi-Fi tracking is enabled, but location tracking is turned off.</source>
        <translation>Die Erfassung per WLAN ist eingeschaltet, aber der Standortzugriff fehlt.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <comment>network</comment>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>%1 is an office network</source>
        <translation>%1 ist ein Büronetzwerk</translation>
    </message>
    <message>
        <source>Add %1</source>
        <comment>network</comment>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Automatic In Office Tracking</source>
        <translation>Automatische Erfassung im Büro</translation>
    </message>
    <message>
        <source>Enable Automatic Tracking</source>
        <translation>Automatische Erfassung einschalten</translation>
    </message>
    <message>
        <source>Check Every (mins)</source>
        <translation>Prüfen alle (Min.)</translation>
    </message>
    <message>
        <source>Check if in office every</source>
        <translation>Anwesenheit prüfen alle</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>If any of these networks are in range, you will be counted as in-office.</source>
        <translation>Ist eines dieser Netzwerke in Reichweite, zählt der Tag als Bürotag.</translation>
    </message>
    <message>
        <source>Run In-Office Check</source>
        <translation>Anwesenheit prüfen</translation>
    </message>
    <message>
        <source>In-Office Networks</source>
        <translation>Büronetzwerke</translation>
    </message>
    <message>
        <source>Add custom network</source>
        <translation>Netzwerk mit Namen hinzufügen</translation>
    </message>
    <message>
        <source>In-Range Networks</source>
        <translation>Netzwerke in Reichweite</translation>
    </message>
    <message>
        <source>These networks are currently in range of your device.</source>
        <translation>Diese Netzwerke sind gerade in Reichweite des Geräts.</translation>
    </message>
    <message>
        <source>No networks selected</source>
        <translation>Keine Netzwerke ausgewählt</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Sucht …</translation>
    </message>
    <message>
        <source>Scanning for networks...</source>
        <translation>Netzwerke werden gesucht …</translation>
    </message>
    <message>
        <source>No networks found</source>
        <translation>Keine Netzwerke gefunden</translation>
    </message>
    <message>
        <source>Wi-Fi disabled. Turn on Wi-Fi in MacOS to allow scanning.</source>
        <translation>Das WLAN ist aus. Für die Suche bitte das WLAN einschalten.</translation>
    </message>
    <message>
        <source>Minutes must be a whole number between %L1 and %L2</source>
        <translation>Die Minuten müssen eine ganze Zahl zwischen %L1 und %L2 sein</translation>
    </message>
</context>
<context>
    <name>StateGestures</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
</context>
<context>
    <name>StepDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>a number is out of range</source>
        <translation>eine Zahl liegt außerhalb des zulässigen Bereichs</translation>
    </message>
    <message>
        <source>the goal %1 is missing</source>
        <translation>das Ziel %1 fehlt</translation>
    </message>
    <message>
        <source>it has %1 cells instead of %2</source>
        <translation>er hat %1 statt %2 Zellen</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; holds a value of the wrong type</source>
        <translation>das Feld „%1“ enthält einen Wert der falschen Art</translation>
    </message>
    <message>
        <source>its checksum differs</source>
        <translation>seine Prüfsumme stimmt nicht</translation>
    </message>
    <message>
        <source>The file is not a data store of Pellory.</source>
        <translation>Die Datei ist kein Datenspeicher von Pellory.</translation>
    </message>
    <message>
        <source>The data store was written by a newer version of Pellory (format %1, this version knows format %2). Install that version to open it.</source>
        <translation>Der Datenspeicher stammt von einer neueren Version von Pellory (Format %1, diese Version kennt Format %2). Zum Öffnen bitte die neuere Version installieren.</translation>
    </message>
    <message>
        <source>The data store has the unknown format %1.</source>
        <translation>Der Datenspeicher hat das unbekannte Format %1.</translation>
    </message>
    <message>
        <source>The data store lacks &quot;%1&quot;.</source>
        <translation>Im Datenspeicher fehlt „%1“.</translation>
    </message>
    <message>
        <source>The data store is damaged: its header does not allow writing.</source>
        <translation>Der Datenspeicher ist beschädigt: Sein Kopf lässt kein Schreiben zu.</translation>
    </message>
    <message>
        <source>The data store is damaged: %1</source>
        <translation>Der Datenspeicher ist beschädigt: %1</translation>
    </message>
    <message>
        <source>The data store is damaged: record %1 of &quot;%2&quot; cannot be read, %3.</source>
        <translation>Der Datenspeicher ist beschädigt: Der Eintrag %1 in „%2“ ist nicht lesbar, %3.</translation>
    </message>
    <message>
        <source>The data store is in use by another program. Close that program and start Pellory again.</source>
        <translation>Der Datenspeicher wird von einem anderen Programm benutzt. Bitte das andere Programm beenden und Pellory erneut starten.</translation>
    </message>
    <message>
        <source>The file is not a data store of Pellory (%1).</source>
        <translation>Die Datei ist kein Datenspeicher von Pellory (%1).</translation>
    </message>
    <message>
        <source>The data store is damaged (%1).</source>
        <translation>Der Datenspeicher ist beschädigt (%1).</translation>
    </message>
    <message>
        <source>The disk is full (%1).</source>
        <translation>Der Datenträger ist voll (%1).</translation>
    </message>
    <message>
        <source>The data store or its folder cannot be written (%1).</source>
        <translation>Der Datenspeicher oder sein Ordner kann nicht beschrieben werden (%1).</translation>
    </message>
    <message>
        <source>The data store cannot be used (%1).</source>
        <translation>Der Datenspeicher kann nicht benutzt werden (%1).</translation>
    </message>
    <message>
        <source>the number of a day is not an integer</source>
        <translation>die Nummer eines Tages ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a day state</source>
        <translation>„%1“ ist kein Tagesstatus</translation>
    </message>
    <message>
        <source>it is not a list</source>
        <translation>er ist keine Liste</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>Die Datei %1 kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>The data store cannot be converted to the format of this version of Pellory, and is left as it was. %1</source>
        <translation>Der Datenspeicher kann nicht in das Format dieser Version von Pellory umgewandelt werden und bleibt, wie er war. %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the data store is not defined as expected.</source>
        <translation>„%1“ ist im Datenspeicher anders definiert als erwartet.</translation>
    </message>
    <message>
        <source>The file %1 cannot be renamed: %2.</source>
        <translation>Die Datei %1 kann nicht umbenannt werden: %2.</translation>
    </message>
    <message>
        <source>Another program has changed the data file.</source>
        <translation>Ein anderes Programm hat die Datendatei geändert.</translation>
    </message>
    <message>
        <source>Another program is using the data file. Close it if this lasts.</source>
        <translation>Ein anderes Programm verwendet die Datendatei. Bitte beenden, falls das andauert.</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need any more.</source>
        <translation>Der Datenträger ist voll. Bitte nicht mehr benötigte Dateien löschen.</translation>
    </message>
    <message>
        <source>Pellory may not write its data file. Check the permissions of the file and its folder.</source>
        <translation>Pellory darf seine Datendatei nicht schreiben. Bitte die Zugriffsrechte der Datei und ihres Ordners prüfen.</translation>
    </message>
    <message>
        <source>The disk does not take the data (%1). Check it, and make a copy of your data.</source>
        <translation>Der Datenträger nimmt die Daten nicht an (%1). Bitte prüfen und eine Kopie der Daten anlegen.</translation>
    </message>
    <message>
        <source>%1 is not a date</source>
        <translation>%1 ist kein Datum</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a state</source>
        <translation>„%1“ ist kein Status</translation>
    </message>
    <message>
        <source>The folder %1 cannot be used: %2.</source>
        <translation>Der Ordner %1 kann nicht verwendet werden: %2.</translation>
    </message>
    <message>
        <source>The data file is being changed.</source>
        <translation>Die Datendatei wird gerade geändert.</translation>
    </message>
    <message>
        <source>The days off cannot be stored.</source>
        <translation>Die freien Tage können nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>StoredData</name>
    <message>
        <source>There is no data yet: %1 does not exist.</source>
        <translation>Es gibt noch keine Daten: %1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>%1 is missing, but there are backups of it. Start Pellory to restore one.</source>
        <translation>%1 fehlt, aber es gibt Sicherungen davon. Starten Sie Pellory, um eine wiederherzustellen.</translation>
    </message>
    <message>
        <source>The folder of %1 cannot be created: %2</source>
        <translation>Der Ordner von %1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>Another Pellory is using your data, perhaps in another session, and cannot be reached from here. Quit it first, or use its window.</source>
        <translation>Ein anderes Pellory benutzt Ihre Daten, vielleicht in einer anderen Sitzung, und ist von hier aus nicht erreichbar. Beenden Sie es vorher, oder benutzen Sie dessen Fenster.</translation>
    </message>
    <message>
        <source>The data file is from an earlier version of Pellory. Start Pellory once to convert it.</source>
        <translation>Die Datei mit den Daten stammt von einer früheren Version von Pellory. Starten Sie Pellory einmal, um sie umzuwandeln.</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>%1 kann nicht benutzt werden: %2</translation>
    </message>
</context>
<context>
    <name>TodayEntries</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
</context>
<context>
    <name>Toolbar</name>
    <message>
        <source>Calendar View Settings</source>
        <translation>Einstellungen der Kalenderansicht</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>About Pellory</source>
        <translation>Über Pellory</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>TrackingPopover</name>
    <message>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>Location access</source>
        <translation>Standortzugriff</translation>
    </message>
    <message>
        <source>Last check</source>
        <translation>Letzte Prüfung</translation>
    </message>
    <message>
        <source>Next check</source>
        <translation>Nächste Prüfung</translation>
    </message>
    <message>
        <source>On</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>None</source>
        <comment>check</comment>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Finish Set-up</source>
        <translation>Einrichtung abschließen</translation>
    </message>
</context>
<context>
    <name>TrackingStatus</name>
    <message>
        <source>Tracking Off</source>
        <translation>Erfassung aus</translation>
    </message>
    <message>
        <source>Tracking On</source>
        <translation>Erfassung an</translation>
    </message>
    <message>
        <source>Wi-Fi or Location Off</source>
        <translation>WLAN oder Standort aus</translation>
    </message>
    <message>
        <source>Set-up Not Finished</source>
        <translation>Einrichtung nicht abgeschlossen</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Run In-Office Check</source>
        <translation>Anwesenheit prüfen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Pellory: %1</source>
        <translation>Pellory: %1</translation>
    </message>
</context>
<context>
    <name>UndoLine</name>
    <message>
        <source>Nothing to undo</source>
        <translation>Es gibt nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Es gibt nichts zu wiederholen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>UsualWeekCard</name>
    <message>
        <source>Usual Week</source>
        <translation>Übliche Woche</translation>
    </message>
    <message>
        <source>&quot;Plan Usual Week&quot; in the menu of the main window plans these days of the month or quarter that it shows: from today on, workdays that are not marked yet.</source>
        <translation>„Übliche Woche planen“ im Menü des Hauptfensters plant diese Tage des gezeigten Monats oder Quartals: von heute an die Arbeitstage, die noch nicht markiert sind.</translation>
    </message>
    <message>
        <source>Plan new months like this</source>
        <translation>Neue Monate so planen</translation>
    </message>
    <message>
        <source>A month is planned once, when it is shown or checked for the first time. Months that were there before are left as they are.</source>
        <translation>Ein Monat wird einmal geplant, wenn er zum ersten Mal gezeigt oder geprüft wird. Monate, die es schon gibt, bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>I usually come on</source>
        <translation>Ich komme meist am</translation>
    </message>
</context>
<context>
    <name>VacationCard</name>
    <message>
        <source>Vacation</source>
        <translation>Urlaub</translation>
    </message>
    <message>
        <source>A vacation day is then not a workday: it counts neither for you nor against you, and &quot;Vacation days count as in the office&quot; on the page General is off.</source>
        <translation>Ein Urlaubstag ist dann kein Arbeitstag: Er zählt weder für noch gegen Sie, und „Urlaubstage zählen als Bürotage“ auf der Seite „Allgemein“ ist aus.</translation>
    </message>
    <message>
        <source>Leave vacation days out of the workdays</source>
        <translation>Urlaubstage nicht als Arbeitstage zählen</translation>
    </message>
</context>
<context>
    <name>WeekLabel</name>
    <message>
        <source>%1 · %2</source>
        <comment>number of a week, and its days in the office</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>days in the office, and those that are needed</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Week %1: 1 office day</source>
        <translation>Kalenderwoche %1: 1 Bürotag</translation>
    </message>
    <message numerus="yes">
        <source>Week %1: %n office days</source>
        <translation>
            <numerusform>Kalenderwoche %1: %n Bürotag</numerusform>
            <numerusform>Kalenderwoche %1: %n Bürotage</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. %2: %3</source>
        <comment>week, name of a rule, and how it is met</comment>
        <translation>%1. %2: %3</translation>
    </message>
    <message>
        <source>%1, reached</source>
        <comment>a rule</comment>
        <translation>%1, erreicht</translation>
    </message>
</context>
<context>
    <name>WelcomeSteps</name>
    <message>
        <source>Welcome to Pellory</source>
        <translation>Willkommen bei Pellory</translation>
    </message>
    <message>
        <source>Mark where you spend each day, and see how far you are from your goals. Try it on this sample month: click a day to change it, or right-click it for all states.</source>
        <translation>Markieren Sie, wo Sie jeden Tag verbringen, und sehen Sie, wie weit Sie von Ihren Zielen entfernt sind. Probieren Sie es an diesem Beispielmonat aus: Ein Klick ändert einen Tag, ein Rechtsklick bietet jeden Status an.</translation>
    </message>
    <message>
        <source>Your goals</source>
        <translation>Ihre Ziele</translation>
    </message>
    <message>
        <source>On average, how many days a week do you want or need to be in the office? The progress tracker shows how many days you still need for each goal.</source>
        <translation>An wie vielen Tagen pro Woche möchten oder müssen Sie im Durchschnitt im Büro sein? Der Fortschrittsbalken zeigt, wie viele Tage für jedes Ziel noch fehlen. Zahlen stehen mit Punkt statt Komma.</translation>
    </message>
    <message>
        <source>Always there, never in the way</source>
        <translation>Immer da, nie im Weg</translation>
    </message>
    <message>
        <source>Pellory can start without a window when you log in, and notify you when it marks a day.</source>
        <translation>Pellory kann bei der Anmeldung ohne Fenster starten und melden, wenn es einen Tag erfasst.</translation>
    </message>
    <message>
        <source>Days that mark themselves</source>
        <translation>Tage automatisch erfassen</translation>
    </message>
    <message>
        <source>When a Wi-Fi network of your office is in range, Pellory can mark the day for you. Nothing about it leaves this computer.</source>
        <translation>Ist ein WLAN Ihres Büros in Reichweite, kann Pellory den Tag für Sie erfassen. Nichts davon verlässt diesen Computer.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Alles bereit</translation>
    </message>
    <message>
        <source>No goals</source>
        <translation>Keine Ziele</translation>
    </message>
    <message>
        <source>Goals: %1 days per week</source>
        <translation>Ziele: %1 Tage pro Woche</translation>
    </message>
    <message>
        <source>Automatic tracking is on</source>
        <translation>Die automatische Erfassung ist an</translation>
    </message>
    <message>
        <source>Automatic tracking is off</source>
        <translation>Die automatische Erfassung ist aus</translation>
    </message>
    <message>
        <source>Office networks: %1</source>
        <translation>Büronetzwerke: %1</translation>
    </message>
    <message>
        <source>Notifications are on</source>
        <translation>Benachrichtigungen sind an</translation>
    </message>
    <message>
        <source>Notifications are off</source>
        <translation>Benachrichtigungen sind aus</translation>
    </message>
    <message>
        <source>Pellory starts at login</source>
        <translation>Pellory startet bei der Anmeldung</translation>
    </message>
    <message>
        <source>Pellory does not start at login</source>
        <translation>Pellory startet nicht bei der Anmeldung</translation>
    </message>
    <message>
        <source>No office network is set, so no day is marked as in the office. Go back to add one.</source>
        <translation>Es ist kein Büronetzwerk angegeben, daher wird kein Tag als „Im Büro“ erfasst. Mit „Zurück“ können Sie eines hinzufügen.</translation>
    </message>
    <message>
        <source>Weekend Day</source>
        <translation>Wochenendtag</translation>
    </message>
    <message>
        <source>In the sample month</source>
        <translation>Im Beispielmonat</translation>
    </message>
    <message>
        <source>When it marks a day</source>
        <translation>Wenn ein Tag markiert wird</translation>
    </message>
    <message>
        <source>These are your choices. You can change them later in the settings (Ctrl+,). Press F1 for help.</source>
        <translation>Das haben Sie gewählt. Alles lässt sich später in den Einstellungen (Strg+,) ändern. F1 öffnet die Hilfe.</translation>
    </message>
    <message>
        <source>What the colours mean</source>
        <translation>Was die Farben bedeuten</translation>
    </message>
</context>
<context>
    <name>WelcomeView</name>
    <message>
        <source>Welcome to Pellory</source>
        <translation>Willkommen bei Pellory</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>WorkWeeksCard</name>
    <message>
        <source>Own Workdays</source>
        <translation>Eigene Arbeitstage</translation>
    </message>
    <message>
        <source>From the date on, only the days that you choose are workdays. Days before it count as they did.</source>
        <translation>Ab dem Datum sind nur die Tage Arbeitstage, die Sie wählen. Frühere Tage zählen wie bisher.</translation>
    </message>
    <message>
        <source>Workdays from</source>
        <translation>Arbeitstage ab</translation>
    </message>
    <message>
        <source>I work on</source>
        <translation>Ich arbeite am</translation>
    </message>
    <message>
        <source>Set Workdays</source>
        <translation>Arbeitstage festlegen</translation>
    </message>
    <message>
        <source>From</source>
        <comment>date</comment>
        <translation>Ab</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <comment>days of the week, date</comment>
        <translation>%1 ab %2</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <comment>workdays</comment>
        <translation>„%1“ entfernen</translation>
    </message>
    <message>
        <source>Monday to Friday are workdays.</source>
        <translation>Montag bis Freitag sind Arbeitstage.</translation>
    </message>
    <message>
        <source>Monday to Friday before that</source>
        <translation>Davor Montag bis Freitag</translation>
    </message>
    <message>
        <source>Choose at least one day of the week.</source>
        <translation>Wählen Sie mindestens einen Wochentag.</translation>
    </message>
</context>
<context>
    <name>YearFigures</name>
    <message numerus="yes">
        <source>%1: %2 of %n workdays in office, %3 days per week on average</source>
        <comment>quarter or year</comment>
        <translation>
            <numerusform>%1: %2 von %n Arbeitstag im Büro, im Schnitt %3 Tage pro Woche</numerusform>
            <numerusform>%1: %2 von %n Arbeitstagen im Büro, im Schnitt %3 Tage pro Woche</numerusform>
        </translation>
    </message>
    <message>
        <source>Figures of the year</source>
        <translation>Zahlen des Jahres</translation>
    </message>
    <message>
        <source>In Office</source>
        <translation>Im Büro</translation>
    </message>
    <message>
        <source>Workdays</source>
        <translation>Arbeitstage</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Schnitt</translation>
    </message>
</context>
<context>
    <name>YearView</name>
    <message>
        <source>Error loading year!</source>
        <translation>Das Jahr konnte nicht geladen werden!</translation>
    </message>
    <message>
        <source>Last Year</source>
        <translation>Voriges Jahr</translation>
    </message>
    <message>
        <source>Next Year</source>
        <translation>Nächstes Jahr</translation>
    </message>
    <message>
        <source>Q%1</source>
        <comment>a quarter of the year</comment>
        <translation>%1. Quartal</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Location Settings</source>
        <translation>Standorteinstellungen</translation>
    </message>
    <message>
        <source>Pellory is running already</source>
        <translation>Pellory läuft bereits</translation>
    </message>
    <message>
        <source>It does not answer. End it, or log out and in again, and start Pellory again.</source>
        <translation>Es antwortet nicht. Beenden Sie es, oder melden Sie sich ab und wieder an, und starten Sie Pellory dann erneut.</translation>
    </message>
    <message>
        <source>Start without a window, as at login.</source>
        <translation>Ohne Fenster starten, wie bei der Anmeldung.</translation>
    </message>
    <message>
        <source>Make the running Pellory check for office networks now.</source>
        <translation>Das laufende Pellory sofort nach Büronetzwerken suchen lassen.</translation>
    </message>
    <message>
        <source>A calendar of your days in the office that marks them by the Wi-Fi networks in range.</source>
        <translation>Ein Kalender Ihrer Bürotage, der sie an den WLANs in Reichweite erkennt.</translation>
    </message>
    <message>
        <source>Print today&apos;s state and the figures of month and quarter.</source>
        <translation>Den Status von heute und die Zahlen von Monat und Quartal ausgeben.</translation>
    </message>
    <message>
        <source>Print the status as JSON.</source>
        <translation>Den Stand als JSON ausgeben.</translation>
    </message>
    <message>
        <source>Mark a day, such as 2026-11-20=IN_OFFICE. Can be repeated.</source>
        <translation>Einen Tag eintragen, zum Beispiel 2026-11-20=IN_OFFICE. Kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Take back the last change.</source>
        <translation>Die letzte Änderung rückgängig machen.</translation>
    </message>
    <message>
        <source>Write all days to a file as CSV; - is standard output.</source>
        <translation>Alle Tage als CSV in eine Datei schreiben; - steht für die Standardausgabe.</translation>
    </message>
    <message>
        <source>Make a backup and print its name.</source>
        <translation>Eine Sicherung anlegen und ihren Namen ausgeben.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Unerwartetes Argument: %1</translation>
    </message>
    <message>
        <source>These options cannot be used together.</source>
        <translation>Diese Optionen lassen sich nicht zusammen verwenden.</translation>
    </message>
    <message>
        <source>Write a day to mark as in --mark 2026-11-20=IN_OFFICE.</source>
        <translation>Schreiben Sie einen Tag wie in --mark 2026-11-20=IN_OFFICE.</translation>
    </message>
    <message>
        <source>Use --json together with --status.</source>
        <translation>Verwenden Sie --json zusammen mit --status.</translation>
    </message>
</context>
</TS>

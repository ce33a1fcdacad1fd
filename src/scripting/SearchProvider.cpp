// SPDX-License-Identifier: GPL-3.0-or-later
#include "SearchProvider.h"

#include "BusNames.h"
#include "Clock.h"
#include "CommandError.h"
#include "RunningProgram.h"

#include <QDBusMetaType>
#include <QLocale>
#include <QProcess>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// So that a search that is being typed does not start a process for each letter.
constexpr auto timeToIdle = 30s;
// Shorter terms begin too many words.
constexpr qsizetype shortestTerm = 3;

bool isAbout(const QStringList& words, const QString& term)
{
    return term.size() >= shortestTerm &&
           std::ranges::any_of(words, [&](const QString& word) { return word.startsWith(term, Qt::CaseInsensitive); });
}

} // namespace

SearchProvider::SearchProvider(StoredData::Place place)
    : m_place(std::move(place))
{
    m_place.isMigrating = false;
    qDBusRegisterMetaType<QList<QVariantMap>>();
    m_idle.setSingleShot(true);
    m_idle.setInterval(timeToIdle);
    connect(&m_idle, &QTimer::timeout, this, [] { QCoreApplication::exit(); });
}

int SearchProvider::run()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(bus_names::searchPath, this, QDBusConnection::ExportScriptableSlots) ||
        !bus.registerService(bus_names::searchService))
        return EXIT_FAILURE;
    m_idle.start();
    return QCoreApplication::exec();
}

QStringList SearchProvider::GetInitialResultSet(const QStringList& terms)
{
    m_idle.start();
    //: Words under which a search of the desktop finds the program, with spaces between them.
    QStringList words = tr("office attendance days needed workdays goals today quarter month").split(u' ');
    words += {u"Pellory"_s, QLocale().standaloneMonthName(m_place.clock.today().month())};
    if (!std::ranges::all_of(terms, [&](const QString& term) { return isAbout(words, term); }))
        return {};
    QStringList found;
    for (const Result& result : results())
        found.append(result.id);
    return found;
}

QStringList SearchProvider::GetSubsearchResultSet(const QStringList& /*previous*/, const QStringList& terms)
{
    return GetInitialResultSet(terms);
}

QList<QVariantMap> SearchProvider::GetResultMetas(const QStringList& results)
{
    m_idle.start();
    QList<QVariantMap> metas;
    for (const Result& result : this->results()) {
        if (results.contains(result.id))
            metas.append({{u"id"_s, result.id},
                          {u"name"_s, result.name},
                          {u"description"_s, result.description},
                          {u"gicon"_s, bus_names::service}});
    }
    return metas;
}

void SearchProvider::ActivateResult(const QString& /*result*/, const QStringList& /*terms*/, uint /*time*/)
{
    openProgram();
}

void SearchProvider::LaunchSearch(const QStringList& /*terms*/, uint /*time*/)
{
    openProgram();
}

QList<SearchProvider::Result> SearchProvider::results() const
{
    const QVariantMap status = this->status();
    if (status.isEmpty())
        return {};
    QList<Result> list{{u"today"_s, tr("Today: %1", "a state").arg(status.value(u"text"_s).toString()),
                        QLocale().toString(m_place.clock.today())}};
    for (const QString& id : {u"month"_s, u"quarter"_s}) {
        const QVariantMap period = status.value(id).toMap();
        const QString days = period.value(u"text"_s).toString(), needed = period.value(u"goalText"_s).toString();
        list.append(needed.isEmpty() ? Result{id, days, {}} : Result{id, needed, days});
    }
    const QVariantList rules = status.value(u"rules"_s).toList();
    for (const QVariant& entry : rules) {
        const QVariantMap rule = entry.toMap();
        list.append({u"rule-%1"_s.arg(list.size()), rule.value(u"outlookText"_s).toString(),
                     u"%1: %2"_s.arg(rule.value(u"name"_s).toString(), rule.value(u"text"_s).toString())});
    }
    return list;
}

// The lock of the store is free again when this returns, so that the program can start.
QVariantMap SearchProvider::status() const
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    try {
        return RunningProgram::isThere(bus) ? RunningProgram(bus, 0ms).status() : StoredData(m_place).status();
    } catch (const CommandError&) {
        return {};
    }
}

void SearchProvider::openProgram() const
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (RunningProgram::isThere(bus))
        RunningProgram(bus).activate();
    else
        QProcess::startDetached(QCoreApplication::applicationFilePath(), {});
}

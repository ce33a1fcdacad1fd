// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveAlert.h"

#include "Button.h"
#include "Follow.h"
#include "ModelContext.h"

#include <QLayout>

using namespace Qt::StringLiterals;

namespace {

// A line can be broken after each folder.
QString breakable(QString path)
{
    return path.replace('/'_L1, u"/\u200b"_s);
}

} // namespace

SaveAlert::SaveAlert(ModelContext& context, QWidget* parent)
    : AlertCard(parent)
    , m_context(context)
    , m_retry(addButton(u"trySaving"_s, tr("Try Again")))
    , m_reload(addButton(u"useFile"_s, tr("Use File on Disk")))
    , m_keep(addButton(u"keepShown"_s, tr("Keep What Is Shown")))
{
    layout()->setContentsMargins(24, 12, 24, 20);
    m_retry->setProminent(true);
    m_keep->setProminent(true);
    connect(m_retry, &QAbstractButton::clicked, this, [this] { m_context.save(); });
    connect(m_reload, &QAbstractButton::clicked, this, &SaveAlert::reloadRequested);
    connect(m_keep, &QAbstractButton::clicked, this, [this] { m_context.keepRecords(); });
    follow(context.saveState(), this, [this] { refresh(); });
}

void SaveAlert::refresh()
{
    const SaveState& state = m_context.saveState();
    if (state.isFine()) {
        hide();
        return;
    }
    const bool isOurs = state.file == SaveState::File::Ours, isMissing = state.file == SaveState::File::Missing;
    setTexts(isOurs      ? tr("Changes Not Saved")
             : isMissing ? tr("Data File Missing")
                         : tr("Data File Replaced"),
             message(m_context));
    m_retry->setVisible(isOurs);
    m_reload->setVisible(!isOurs && !isMissing);
    m_keep->setVisible(!isOurs);
    show(); // announces the texts
}

QString SaveAlert::message(const ModelContext& context)
{
    const SaveState& state = context.saveState();
    const QString path = breakable(context.filePath());
    QStringList sentences;
    switch (state.file) {
    case SaveState::File::Ours:
        return tr("%1 Pellory keeps trying. If it ends first, your last changes are lost.").arg(state.problem);
    case SaveState::File::Missing:
        sentences += tr("%1 has been moved or deleted. Put it back, or keep what is shown in a new file. Nothing is "
                        "saved until then.")
                         .arg(path);
        break;
    case SaveState::File::Replaced:
        sentences += tr("Another program has replaced or changed %1. Nothing is saved until you choose. If you keep "
                        "what is shown, the file on disk stays under another name.")
                         .arg(path);
        if (state.isUnsaved)
            sentences += tr("If you use the file on disk, your last changes are lost.");
    }
    return (sentences + QStringList(state.problem)).join(u' ').trimmed();
}

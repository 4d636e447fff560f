#include "app/window/CInputField.h"

#include "app/window/CJobFrame.h"
#include "common/settings/CAppSettings.h"
#include "ui/disk/CDiskWork.h"

#include <QTimer>

#include <algorithm>
#include <utility>

using namespace thisapp;

CInputField::CInputField(CJobFrame& form, CDiskWork& disk, InputLook look)
    : m_form(form), m_disk(disk), m_look(std::move(look))
{
    connect(&m_form, &CJobFrame::notifyInputEdited, this, &CInputField::onUiEdited);
    connect(&m_form, &CJobFrame::notifyInputChanged, this, &CInputField::onUiTextChanged);
    connect(&m_disk, &CDiskWork::notifyAnswered, this, &CInputField::onUiLooked);
}

void CInputField::set(const QString& text, Proposal proposal)
{
    m_form.setInputText(text);
    schedule(proposal);
    look();
    if (CDiskWork::waitBriefly(m_pending))
        take();
}

bool CInputField::settle()
{
    look();
    if (const auto pending = m_pending; pending.valid() && m_disk.wait(pending))
        onUiLooked(); // unless the wait has brought it
    return !m_pending.valid();
}

bool CInputField::isFile(const QString& path)
{
    const auto facts = m_disk.start<InputFacts>([look = m_look, path] { return look(path, {}); });
    return m_disk.wait(facts) && facts.get().isUsable() && facts.get().path == path;
}

void CInputField::onUiEdited()
{
    schedule(Proposal::Always);
}

void CInputField::onUiTextChanged()
{
    schedule(Proposal::None);
}

void CInputField::onUiLooked()
{
    if (m_pending.valid() && m_pending.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
        take();
}

/// One change may be told more than once, and is looked at when all has been said of it.
void CInputField::schedule(Proposal proposal)
{
    m_pending = {};
    m_proposal = m_isStale ? std::max(m_proposal, proposal) : proposal;
    if (!std::exchange(m_isStale, true))
        QTimer::singleShot(0, this, &CInputField::look);
}

void CInputField::look()
{
    if (!std::exchange(m_isStale, false))
        return;
    m_outputBefore = m_form.outputText();
    m_pending = m_disk.start<InputFacts>(
        [look = m_look, text = m_form.inputText(), naming = readNamingSettings(CAppSettings())] {
            return look(text, naming);
        });
}

void CInputField::take()
{
    m_facts = std::exchange(m_pending, {}).get();
    const bool accepted = m_facts.isUsable() && m_proposal != Proposal::None;
    if (accepted) {
        propose();
        emit notifyAccepted();
    }
    emit notifyFacts();
}

/// An output that the user has given meanwhile stays.
void CInputField::propose()
{
    const QString output = m_form.outputText();
    const bool isWanted =
        m_proposal == Proposal::Always ? output == m_outputBefore : output.trimmed().isEmpty();
    if (isWanted && !m_facts.proposal.isEmpty())
        m_form.setOutputText(m_facts.proposal);
}

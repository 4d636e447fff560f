#include "app/window/CAlgorithmOffer.h"

#include "app/job/JobReport.h"
#include "app/window/CJobFrame.h"
#include "common/path/PathText.h"
#include "ui/algorithms/CSelectAlgFrame.h"

#include <utility>

using namespace thisapp;

CAlgorithmOffer::CAlgorithmOffer(CJobFrame& form) : m_form(form)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(LifetimeMs);
    connect(&m_timer, &QTimer::timeout, this, &CAlgorithmOffer::withdraw);
    connect(&m_form, &CJobFrame::notifyTextChanged, this, &CAlgorithmOffer::withdraw);
    connect(&m_form.algFrame(), &CSelectAlgFrame::notifyAlgChanged, this, &CAlgorithmOffer::withdraw);
}

void CAlgorithmOffer::remember(const SEncryptData& request)
{
    withdraw();
    m_request.reset();
    if (request.operation == Operation::Decrypt)
        m_request = request;
}

void CAlgorithmOffer::make(const SEncryptData& ended)
{
    const std::optional<std::uint32_t> fitting = ended.outcome.fittingAlgorithm;
    if (!fitting || !m_request) {
        m_request.reset();
        return;
    }
    m_request->selection.algorithm = *fitting;
    if (!ended.outcome.root.bytes.empty()) { // opens this one file, and the password none any more
        m_request->request.password = {};
        m_request->request.root = ended.outcome.root;
    }
    m_isMade = true;
    show(true);
    m_timer.start();
}

void CAlgorithmOffer::withdraw()
{
    m_timer.stop();
    // During the job the fields may be changed: what was remembered is of that job, not of the fields.
    if (std::exchange(m_isMade, false)) {
        show(false);
        m_request.reset();
    }
}

void CAlgorithmOffer::show(bool withLink)
{
    const std::uint32_t algorithm = m_request->selection.algorithm;
    Message message{MessageKind::Plain, [algorithm] { return fittingAlgorithmText(algorithm); },
                    pathText(m_request->request.input)};
    if (withLink) {
        message.link = [algorithm] { return tr("Decrypt with %1").arg(algorithmName(algorithm)); };
        message.follow = [this] { take(); };
    }
    m_form.showMessage(Area::Input, std::move(message));
}

void CAlgorithmOffer::take()
{
    if (!m_isMade)
        return;
    const SEncryptData request = *m_request;
    withdraw();
    m_form.algFrame().setSelection(request.selection);
    emit notifyTaken(request);
}

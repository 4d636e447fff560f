#include "app/window/CAlgorithmOffer.h"

#include "app/job/JobReport.h"
#include "app/window/CJobFrame.h"
#include "common/path/PathText.h"
#include "ui/algorithms/CSelectAlgFrame.h"

#include <utility>

using namespace thisapp;

CAlgorithmOffer::CAlgorithmOffer(CJobFrame& form, std::chrono::milliseconds lifetime) : m_form(form)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(lifetime);
    connect(&m_timer, &QTimer::timeout, this, &CAlgorithmOffer::withdraw);
    connect(&m_form, &CJobFrame::notifyTextChanged, this, &CAlgorithmOffer::withdraw);
    connect(&m_form.algFrame(), &CSelectAlgFrame::notifyAlgChanged, this, &CAlgorithmOffer::withdraw);
}

void CAlgorithmOffer::remember(const SEncryptData& request)
{
    forget();
    if (request.operation == Operation::Decrypt)
        m_remembered = request;
}

void CAlgorithmOffer::follow(JobPhase phase)
{
    // A sealed file's key is made before anything has fitted; all other progress comes past the header.
    if (phase != JobPhase::DerivingKey)
        m_remembered.reset();
}

void CAlgorithmOffer::make(const SEncryptData& ended)
{
    const std::optional<SEncryptData> remembered = std::exchange(m_remembered, std::nullopt);
    const std::optional<std::uint32_t> fitting = ended.outcome.fittingAlgorithm;
    if (!fitting || !remembered)
        return;
    const auto offered = std::make_shared<SEncryptData>(*remembered);
    offered->selection.algorithm = *fitting;
    if (!ended.outcome.root.bytes.empty()) { // opens this one file, and the password none any more
        offered->request.password = {};
        offered->request.root = ended.outcome.root;
    }
    m_offered = offered;
    show(*offered, offered);
    m_timer.start();
}

/// During the job the fields may be changed: what was remembered is of that job, not of the fields.
void CAlgorithmOffer::withdraw()
{
    m_timer.stop();
    const Offered offered = m_offered.lock();
    m_offered.reset();
    if (!offered) // there is none, or another message has taken its place
        return;
    offered->request.wipeSecrets();
    show(*offered, nullptr);
}

void CAlgorithmOffer::forget()
{
    withdraw();
    m_remembered.reset();
}

void CAlgorithmOffer::show(const SEncryptData& request, const Offered& link)
{
    const std::uint32_t algorithm = request.selection.algorithm;
    Message message{MessageKind::Plain, [algorithm] { return fittingAlgorithmText(algorithm); },
                    pathText(request.request.input)};
    if (link) {
        message.link = [algorithm] { return tr("Decrypt with %1").arg(algorithmName(algorithm)); };
        message.follow = [this, link] { take(*link); };
    }
    m_form.showMessage(Area::Input, std::move(message));
}

void CAlgorithmOffer::take(const SEncryptData& offered)
{
    if (m_offered.expired())
        return;
    const SEncryptData request = offered;
    withdraw();
    m_form.algFrame().setSelection(request.selection);
    emit notifyTaken(request);
}

#pragma once

#include "app/job/ProgressText.h"
#include "app/job/SEncryptData.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>

class CJobFrame;

/// After a decryption that failed for its algorithm: names the one that fits, with a link that decrypts
/// with it. The secret that was entered is kept for as long as an offer may still come of it, or the link
/// stands, and then wiped. GUI thread.
class CAlgorithmOffer final : public QObject
{
    Q_OBJECT

public:
    /// How long the secret is kept at most, once offered.
    static constexpr std::chrono::milliseconds Lifetime = std::chrono::minutes(3);

    explicit CAlgorithmOffer(CJobFrame& form, std::chrono::milliseconds lifetime = Lifetime);

    /// A job starts with that request.
    void remember(const thisapp::SEncryptData& request);
    /// That job reports its progress. What was remembered is wiped once its algorithm has proved right.
    void follow(thisapp::JobPhase phase);
    /// That job has ended; what was remembered is wiped, or offered.
    void make(const thisapp::SEncryptData& ended);
    /// What was offered is wiped. The sentence stays for who reads it.
    void withdraw();
    /// Wipes what was offered and what was remembered.
    void forget();

signals:
    /// The user takes the offer, which is withdrawn by now: the request with the fitting algorithm.
    void notifyTaken(const thisapp::SEncryptData& request);

private:
    using Offered = std::shared_ptr<thisapp::SEncryptData>;

    /// Null: a sentence without a link.
    void show(const thisapp::SEncryptData& request, const Offered& link);
    void take(const thisapp::SEncryptData& offered);

    CJobFrame& m_form;
    std::optional<thisapp::SEncryptData> m_remembered;
    /// The message in the form owns it: whatever replaces the message, the secret goes with it.
    std::weak_ptr<thisapp::SEncryptData> m_offered;
    QTimer m_timer;
};

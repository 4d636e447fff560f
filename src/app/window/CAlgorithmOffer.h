#pragma once

#include "app/job/SEncryptData.h"

#include <QObject>
#include <QTimer>

#include <optional>

class CJobFrame;

/// After a decryption that failed for its algorithm: names the one that fits, with a link that decrypts
/// with it. The secret that was entered is kept from the start of a decryption for as long as the link
/// stands, and then wiped. GUI thread.
class CAlgorithmOffer final : public QObject
{
    Q_OBJECT

public:
    /// How long the secret is kept at most.
    static constexpr int LifetimeMs = 3 * 60 * 1000;

    explicit CAlgorithmOffer(CJobFrame& form);

    /// A job starts with that request.
    void remember(const thisapp::SEncryptData& request);
    /// That job has ended; what was remembered is forgotten, or offered.
    void make(const thisapp::SEncryptData& ended);
    /// What was remembered is wiped. The sentence stays for who reads it.
    void withdraw();

signals:
    /// The user takes the offer, which is withdrawn by now: the request with the fitting algorithm.
    void notifyTaken(const thisapp::SEncryptData& request);

private:
    void show(bool withLink);
    void take();

    CJobFrame& m_form;
    std::optional<thisapp::SEncryptData> m_request;
    bool m_isMade = false;
    QTimer m_timer;
};

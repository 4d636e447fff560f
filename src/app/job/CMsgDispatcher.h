#pragma once

#include <QObject>

/// Carries the worker's news to the window: emitted on the worker thread, delivered on the window's.
/// The signals say only that there is news; what it is stands in the job's shared data.
class CMsgDispatcher final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    void notifyEncryptStarted();
    void notifyEncryptProgress();
    void notifyEncryptFinished();
    /// The removal of the input file has ended, one way or the other.
    void notifyInputRemovalFinished();
};

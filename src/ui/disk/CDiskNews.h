#pragma once

#include <QObject>

/// Carries the news of an answer from the thread that has it to the GUI thread.
class CDiskNews final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    void notifyAnswered();
};

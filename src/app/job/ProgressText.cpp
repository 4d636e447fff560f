#include "app/job/ProgressText.h"

#include "app/job/ProgressTracker.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace thisapp {

namespace {

/// What is measured over less than a second says little, and is told as if it said much.
constexpr std::int64_t LeastMsForSpeed = 1000;

struct TextOfProgress
{
    Q_DECLARE_TR_FUNCTIONS(Progress)
};

QString number(std::int64_t value)
{
    return QLocale().toString(qlonglong{value});
}

QString speedText(double bytesPerSecond)
{
    //: A speed, as in "12 MiB/s"
    return TextOfProgress::tr("%1/s").arg(
        QLocale().formattedDataSize(static_cast<qint64>(std::llround(bytesPerSecond)), 1));
}

QString stepText(Operation operation, JobPhase phase, const ProgressTracker& progress)
{
    if (phase == JobPhase::DerivingKey)
        return TextOfProgress::tr("Making the key of the password");
    if (phase == JobPhase::Flushing)
        return TextOfProgress::tr("Waiting until the disk has stored the file");
    const QString step = translated(operationTexts(operation).step);
    const auto speed =
        progress.elapsedMs() >= LeastMsForSpeed ? progress.bytesPerSecond() : std::optional<double>();
    //: %1 is "Encrypting" or "Decrypting", %2 a speed
    return speed ? TextOfProgress::tr("%1 at %2").arg(step, speedText(*speed)) : step;
}

} // namespace

QString progressText(Operation operation, JobPhase phase, const ProgressTracker& progress)
{
    QStringList sentences{
        stepText(operation, phase, progress),
        TextOfProgress::tr("%1% processed").arg(QLocale().toString(double{progress.percent()}, 'f', 3)),
    };
    const auto remaining = progress.remainingSeconds();
    if (phase == JobPhase::Processing && remaining)
        sentences += remainingTimeText(*remaining);
    return sentences.join(QStringLiteral(". "));
}

QString startText()
{
    return TextOfProgress::tr("0.000% processed.");
}

QString remainingTimeText(std::int64_t seconds)
{
    const auto hours = seconds / 3600;
    const auto minutes = seconds / 60 % 60;
    seconds %= 60;
    if (hours > 0)
        return TextOfProgress::tr("Remaining time: %1 hours %2 minutes %3 seconds")
            .arg(number(hours), number(minutes), number(seconds));
    if (minutes > 0)
        return TextOfProgress::tr("Remaining time: %1 minutes %2 seconds")
            .arg(number(minutes), number(seconds));
    return TextOfProgress::tr("Remaining time: %1 seconds").arg(number(seconds));
}

QString summaryText(std::int64_t bytes, std::int64_t elapsedMs)
{
    const double seconds = static_cast<double>(elapsedMs) / 1000.0;
    const QString size = QLocale().formattedDataSize(bytes, 1);
    if (elapsedMs < LeastMsForSpeed)
        return TextOfProgress::tr("%1 in less than a second").arg(size);
    //: %1 is a size, %2 a number of seconds, %3 a speed
    return TextOfProgress::tr("%1 in %2 seconds, %3")
        .arg(size, QLocale().toString(seconds, 'f', seconds < 10 ? 1 : 0),
             speedText(static_cast<double>(bytes) / seconds));
}

} // namespace thisapp

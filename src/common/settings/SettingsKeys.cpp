#include "common/settings/SettingsKeys.h"

#include <QSettings>
#include <QVariant>

#include <limits>

namespace thisapp {
namespace {

// A text store hands every value out as text, the registry hands numbers out as numbers: both count.

bool isWholeNumber(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::QString:
        return true;
    default:
        return false;
    }
}

std::optional<std::uint32_t> convert(const QVariant& value, std::uint32_t)
{
    bool converted = false;
    const qlonglong number = isWholeNumber(value) ? value.toLongLong(&converted) : 0;
    if (!converted || number < 0 || number > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<std::uint32_t>(number);
}

std::optional<bool> convert(const QVariant& value, bool)
{
    if (value.type() == QVariant::Bool)
        return value.toBool();
    if (value.type() == QVariant::String) {
        const QString word = value.toString();
        if (word.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
            return true;
        if (word.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
            return false;
    }
    const auto number = convert(value, std::uint32_t{});
    return number && *number <= 1 ? std::optional(*number == 1) : std::nullopt;
}

std::optional<QString> convert(const QVariant& value, const QString&)
{
    return value.type() == QVariant::String ? std::optional(value.toString()) : std::nullopt;
}

} // namespace

template <typename T>
std::optional<T> storedSetting(const QSettings& settings, const SettingsKey<T>& key)
{
    const QVariant value = settings.value(QLatin1String(key.name), key.defaultValue());
    return convert(value, T{});
}

template std::optional<bool> storedSetting(const QSettings&, const SettingsKey<bool>&);
template std::optional<std::uint32_t> storedSetting(const QSettings&, const SettingsKey<std::uint32_t>&);
template std::optional<QString> storedSetting(const QSettings&, const SettingsKey<QString>&);

} // namespace thisapp

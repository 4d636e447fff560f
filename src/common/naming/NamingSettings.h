#pragma once

#include <QString>

class QSettings;

namespace thisapp {

struct SAppOptions;

enum class NamingDirection { Encryption, Decryption };

/// What is added to a file name in one direction. The extension stands without its dot.
struct NameParts
{
    bool addExt;
    bool addSuffix;
    bool addPrefix;
    bool addDate;
    QString ext;
    QString suffix;
    QString prefix;
};

/// All that decides the name of an output file; default-constructed it holds the settings' defaults.
struct NamingSettings
{
    NamingSettings();
    explicit NamingSettings(const SAppOptions& options);

    /// Sets what belongs to naming, and nothing else.
    void store(SAppOptions& options) const;

    bool autogenerate;
    bool useDefaultOutputDir;
    QString outputDirPath;
    NameParts encryption;
    NameParts decryption;
};

/// The settings as they are stored now.
NamingSettings readNamingSettings(const QSettings& settings);

} // namespace thisapp

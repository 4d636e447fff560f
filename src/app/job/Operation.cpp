#include "app/job/Operation.h"

#include <QCoreApplication>

namespace thisapp {

namespace {

constexpr OperationTexts EncryptionTexts{
    QT_TRANSLATE_NOOP("Job", "Encryption algorithm is not defined."),
    QT_TRANSLATE_NOOP("Job", "Select file to encrypt"),
    QT_TRANSLATE_NOOP("Job", "File to encrypt is not defined."),
    QT_TRANSLATE_NOOP("Job", "File to encrypt is not found."),
    QT_TRANSLATE_NOOP("Job", "Failed to prepare encryption engine."),
    QT_TRANSLATE_NOOP("Job", "Failed to start the encryption."),
    QT_TRANSLATE_NOOP("Job", "Encrypting"),
    QT_TRANSLATE_NOOP("Job", "File encryption was canceled"),
    QT_TRANSLATE_NOOP("Job", "File was encrypted successfully"),
    QT_TRANSLATE_NOOP("Job", "Failed to encrypt file."),
};

constexpr OperationTexts DecryptionTexts{
    QT_TRANSLATE_NOOP("Job", "Decryption algorithm is not defined."),
    QT_TRANSLATE_NOOP("Job", "Select file to decrypt"),
    QT_TRANSLATE_NOOP("Job", "File to decrypt is not defined."),
    QT_TRANSLATE_NOOP("Job", "File to decrypt is not found."),
    QT_TRANSLATE_NOOP("Job", "Failed to prepare decryption engine."),
    QT_TRANSLATE_NOOP("Job", "Failed to start the decryption."),
    QT_TRANSLATE_NOOP("Job", "Decrypting"),
    QT_TRANSLATE_NOOP("Job", "File decryption was canceled"),
    QT_TRANSLATE_NOOP("Job", "File was decrypted successfully"),
    QT_TRANSLATE_NOOP("Job", "Failed to decrypt file."),
};

} // namespace

const OperationTexts& operationTexts(Operation operation)
{
    return operation == Operation::Encrypt ? EncryptionTexts : DecryptionTexts;
}

QString translated(const char* operationText)
{
    return QCoreApplication::translate("Job", operationText);
}

} // namespace thisapp

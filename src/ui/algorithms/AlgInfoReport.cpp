#include "ui/algorithms/AlgInfoReport.h"

#include "crypto/catalogue/AlgInfo.h"
#include "crypto/catalogue/Catalogue.h"
#include "crypto/key/Hash.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace thisapp {

using namespace tessaly;

namespace {

struct AlgInfoReport
{
    Q_DECLARE_TR_FUNCTIONS(AlgInfoReport)
};

QString latin1(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

QString line(const QString& label, const QString& value)
{
    return label + QLatin1Char(' ') + value;
}

QStringList sizeLines(const crypto::AlgRecord& record)
{
    if (record.keyLength < 1 || record.ivLength < 1)
        return {AlgInfoReport::tr("The parameters are not defined")};
    QStringList lines{line(AlgInfoReport::tr("Key size:"), QLocale().toString(record.keyLength)),
                      line(AlgInfoReport::tr("IV size:"), QLocale().toString(record.ivLength))};
    if (record.blockLength != 0)
        lines += line(AlgInfoReport::tr("Mandatory block size:"), QLocale().toString(record.blockLength));
    if (record.mode != crypto::CipherMode::Stream)
        lines += line(AlgInfoReport::tr("Cipher mode:"), latin1(crypto::modeName(record.mode)));
    if (record.stream)
        lines += AlgInfoReport::tr("Stream cipher");
    if (record.littleEndian) // no algorithm declares big-endian
        lines += line(AlgInfoReport::tr("Endianness:"), AlgInfoReport::tr("Little-endian"));
    return lines;
}

QStringList hashLines(const crypto::AlgRecord& record)
{
    const std::uint32_t hash = crypto::keyDerivationHash(record.keyLength, record.ivLength);
    const std::uint32_t digest = crypto::digestLength(hash);
    QStringList lines{line(AlgInfoReport::tr("Hash function to calculate a key via password:"),
                           hash != 0 ? latin1(crypto::hashName(hash)) : AlgInfoReport::tr("Unknown"))};
    if (record.keyLength < digest)
        lines += AlgInfoReport::tr(
                     "The length of the hash is not equal to the length of key. Therefore, the hash will be "
                     "truncated from %1 to %2 bytes.")
                     .arg(QLocale().toString(digest), QLocale().toString(record.keyLength));
    return lines;
}

} // namespace

QString algInfoReport(const QString& name, const crypto::AlgRecord& record)
{
    constexpr int SeparatorLength = 51;
    QStringList lines{QString(SeparatorLength, QLatin1Char('/')),
                      line(AlgInfoReport::tr("Algorithm name:"), name)};
    lines += sizeLines(record);
    lines += hashLines(record);
    const QString lineEnd = QStringLiteral("\r\n");
    return lines.join(lineEnd) + lineEnd;
}

} // namespace thisapp

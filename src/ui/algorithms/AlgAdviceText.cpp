#include "ui/algorithms/AlgAdviceText.h"

#include <QCoreApplication>
#include <algorithm>

namespace thisapp {

using tessaly::crypto::AlgAdvice;

namespace {

struct AlgAdviceText
{
    Q_DECLARE_TR_FUNCTIONS(AlgAdviceText)
};

struct SRow
{
    AlgAdvice advice;
    MessageKind kind;
    const char* remark;
    const char* sentence;
};

constexpr SRow Rows[] = {
    {AlgAdvice::Recommended, MessageKind::Success, QT_TRANSLATE_NOOP("AlgAdviceText", "recommended"),
     QT_TRANSLATE_NOOP("AlgAdviceText", "Examined in public for more than twenty years, and unbroken.")},
    {AlgAdvice::SharedKeyStream, MessageKind::Warning, QT_TRANSLATE_NOOP("AlgAdviceText", "seal needed"),
     QT_TRANSLATE_NOOP("AlgAdviceText",
                       "Seal the file, or use its password for no other: without a seal all files under one "
                       "password share a key stream, and two of them reveal each other.")},
    {AlgAdvice::ShortBlock, MessageKind::Warning, QT_TRANSLATE_NOOP("AlgAdviceText", "short blocks"),
     QT_TRANSLATE_NOOP(
         "AlgAdviceText",
         "Its blocks have only 64 bits, so that many gigabytes under one key give away parts of "
         "their contents (Sweet32, CVE-2016-2183).")},
    {AlgAdvice::TwoKeyTripleDes, MessageKind::Warning, QT_TRANSLATE_NOOP("AlgAdviceText", "outdated"),
     QT_TRANSLATE_NOOP("AlgAdviceText", "Not allowed for encryption since 2016 (NIST SP 800-131A): its two "
                                        "keys are weaker than they are long, and its blocks are short.")},
    {AlgAdvice::TripleDes, MessageKind::Warning, QT_TRANSLATE_NOOP("AlgAdviceText", "outdated"),
     QT_TRANSLATE_NOOP("AlgAdviceText",
                       "Not allowed for encryption since 2024 (NIST SP 800-131A Rev. 2): its "
                       "blocks have only 64 bits (Sweet32, CVE-2016-2183).")},
    {AlgAdvice::ShortKey, MessageKind::Error, QT_TRANSLATE_NOOP("AlgAdviceText", "short key"),
     QT_TRANSLATE_NOOP("AlgAdviceText", "Its key has only 80 bits, and it is not allowed for encryption any "
                                        "more (NIST SP 800-131A).")},
    {AlgAdvice::RelatedKeys, MessageKind::Error, QT_TRANSLATE_NOOP("AlgAdviceText", "weak keys"),
     QT_TRANSLATE_NOOP("AlgAdviceText",
                       "Each key has three others that do the same, and related keys break it (Kelsey, "
                       "Schneier and Wagner, 1996 and 1997).")},
    {AlgAdvice::AttacksPublished, MessageKind::Error, QT_TRANSLATE_NOOP("AlgAdviceText", "attacks known"),
     QT_TRANSLATE_NOOP("AlgAdviceText",
                       "Attacks on it need less work than trying its keys (Isobe, 2011; Dinur, Dunkelman and "
                       "Shamir, 2012), and its blocks have only 64 bits.")},
};

} // namespace

SAlgAdvice algAdvice(AlgAdvice advice)
{
    const auto* row = std::ranges::find(Rows, advice, &SRow::advice);
    if (row == std::end(Rows))
        return {};
    return {AlgAdviceText::tr(row->remark), AlgAdviceText::tr(row->sentence), row->kind};
}

SAlgAdvice algAdvice(std::uint32_t algorithmId)
{
    const auto* entry = tessaly::crypto::findAlgorithm(algorithmId);
    return entry != nullptr ? algAdvice(entry->advice) : SAlgAdvice();
}

} // namespace thisapp

#include "app/job/FileRefusal.h"

#include "common/path/PathText.h"

#include <QCoreApplication>

namespace thisapp {

using namespace tessaly;

namespace {

struct TextOfRefusal
{
    Q_DECLARE_TR_FUNCTIONS(JobRequest)
};

} // namespace

RefusalText inputRefusal(Operation operation, const RequestFacts& facts)
{
    switch (facts.inputCheck) {
    case io::InputCheck::Usable:
        break;
    case io::InputCheck::NotFound:
        return [text = operationTexts(operation).fileNotFound] { return translated(text); };
    case io::InputCheck::NotRegular:
        return [] { return TextOfRefusal::tr("The input is not a regular file."); };
    }
    return {};
}

RefusalText outputRefusal(const RequestFacts& facts, const std::filesystem::path& output)
{
    switch (facts.outputCheck) {
    case io::OutputCheck::Free:
    case io::OutputCheck::Exists:
        break;
    case io::OutputCheck::NoFolder:
        return [folder = pathText(output.parent_path())] {
            return TextOfRefusal::tr("The output folder is not found: %1").arg(folder);
        };
    case io::OutputCheck::MatchesInput:
        return [] { return TextOfRefusal::tr("Output file name matches the name of the input file"); };
    case io::OutputCheck::NotRegular:
        return [] { return TextOfRefusal::tr("The output is not a regular file."); };
    }
    return {};
}

RefusalText existingRefusal(const RequestFacts& facts, bool rewriteOutput)
{
    if (facts.outputCheck == io::OutputCheck::Free || rewriteOutput)
        return {};
    return [] {
        return TextOfRefusal::tr("Output file already exists! A 'not rewrite' option has been selected.");
    };
}

} // namespace thisapp

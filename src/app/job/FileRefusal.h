#pragma once

#include "app/job/Operation.h"
#include "app/job/RequestFacts.h"

#include <QString>

#include <filesystem>
#include <functional>

/// Why a job over files that look so is refused, as a text that follows a change of the language; none
/// when nothing speaks against it.
namespace thisapp {

using RefusalText = std::function<QString()>;

RefusalText inputRefusal(Operation operation, const RequestFacts& facts);
/// Whatever is to become of an existing output.
RefusalText outputRefusal(const RequestFacts& facts, const std::filesystem::path& output);
/// Only of an output that stands there already.
RefusalText existingRefusal(const RequestFacts& facts, bool rewriteOutput);

} // namespace thisapp

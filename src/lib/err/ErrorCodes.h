#pragma once

#include "lib/err/ResultCode.h"

#include <cstdint>

/// Every number that a ResultCode can carry, in one place. Category 5 numbers appear in error
/// lines and logs, so they never change their meaning.
namespace tessaly::err {

inline constexpr std::uint32_t CategorySystem = 1;
inline constexpr std::uint32_t CategoryLibrary = 5;
/// A caught Crypto++ exception; the code is its Crypto++ error type.
inline constexpr std::uint32_t CategoryCryptoPP = 53;

/// Codes of category 5.
enum Code : std::uint32_t {
    NoObject = 4,
    NullArgument = 5,
    NoResultPlace = 6,
    AlreadyOpen = 7,
    Busy = 8,
    FirstBufferAllocation = 13,
    SecondBufferAllocation = 14,
    NoInputStream = 17,
    NoOutputStream = 18,
    FileNameNotDefined = 40,
    FileNotFound = 41,
    OpenFileFailed = 42,
    GetFileSizeFailed = 43,
    ReadFileFailed = 45,
    FileTooLarge = 46,
    MalformedText = 47,
    ReadStreamFailed = 60,
    WriteStreamFailed = 61,
    UnknownAlgorithm = 70,
    UnknownLocale = 80,
    NoTranslation = 81,
    StreamClosed = 104,
    InputNameNotDefined = 200,
    InputNotFound = 201,
    OutputNameNotDefined = 202,
    OutputNotFound = 203,
    OutputMatchesInput = 206,
    NoRunnable = 300,
    LaunchFailed = 303,
    RunnableThrew = 304,
    UnknownHash = 700,
    OperationStopped = 1004,
    KeyingFailed = 4000,
    CheckValueHashFailed = 4002,
    CheckValueDiffers = 4003,
    InputTooShort = 4004,
    InputTruncated = 4005,
    EngineNotInitialized = 4006,
    SealBroken = 4010,
    ProcessingFailed = 4020,
    KeyLengthDiffers = 4040,
    IvLengthDiffers = 4041,
    KeyDerivationFailed = 4042,
    ChunkTooSmall = 4060,
};

constexpr ResultCode library(Code code)
{
    return {CategoryLibrary, code};
}

constexpr ResultCode system(int errorNumber)
{
    return {CategorySystem, static_cast<std::uint32_t>(errorNumber)};
}

} // namespace tessaly::err

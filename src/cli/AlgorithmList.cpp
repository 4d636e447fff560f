#include "cli/AlgorithmList.h"

#include "crypto/catalogue/Catalogue.h"

#include <cstddef>

namespace cli {

namespace {

using tessaly::crypto::CatalogueEntry;
using tessaly::crypto::modeName;

std::string padded(std::string text, std::size_t width)
{
    text.insert(0, text.size() < width ? width - text.size() : 0, ' ');
    return text;
}

std::string tableRow(const CatalogueEntry& entry)
{
    const tessaly::crypto::AlgRecord& record = entry.record;
    std::string name(entry.name);
    name.resize(15, ' ');
    return padded(std::to_string(entry.id), 4) + "  " + name + padded(std::to_string(record.keyLength), 5) +
           padded(std::to_string(record.blockLength), 7) + padded(std::to_string(record.ivLength), 5) + "  " +
           std::string(modeName(record.mode)) + "\n";
}

std::string jsonObject(const CatalogueEntry& entry)
{
    const tessaly::crypto::AlgRecord& record = entry.record;
    return "  {\"id\": " + std::to_string(entry.id) + ", \"name\": \"" + std::string(entry.name) +
           "\", \"keyBytes\": " + std::to_string(record.keyLength) +
           ", \"blockBytes\": " + std::to_string(record.blockLength) +
           ", \"ivBytes\": " + std::to_string(record.ivLength) + ", \"mode\": \"" +
           std::string(modeName(record.mode)) + "\"}";
}

} // namespace

std::string algorithmTable()
{
    std::string table = "  id  name             key  block   IV  mode\n";
    for (const auto& entry : tessaly::crypto::catalogue())
        table += tableRow(entry);
    return table;
}

std::string algorithmJson()
{
    std::string json = "[";
    const char* separator = "\n";
    for (const auto& entry : tessaly::crypto::catalogue()) {
        json += separator + jsonObject(entry);
        separator = ",\n";
    }
    return json + "\n]\n";
}

} // namespace cli

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
    const auto& [key, iv, mode, block, littleEndian, stream] = entry.record;
    std::string name(entry.name);
    name.resize(15, ' ');
    return padded(std::to_string(entry.id), 4) + "  " + name + padded(std::to_string(key), 5) +
           padded(std::to_string(block), 7) + padded(std::to_string(iv), 5) + "  " +
           std::string(modeName(mode)) + "\n";
}

std::string jsonObject(const CatalogueEntry& entry)
{
    const auto& [key, iv, mode, block, littleEndian, stream] = entry.record;
    return "  {\"id\": " + std::to_string(entry.id) + ", \"name\": \"" + std::string(entry.name) +
           "\", \"keyBytes\": " + std::to_string(key) + ", \"blockBytes\": " + std::to_string(block) +
           ", \"ivBytes\": " + std::to_string(iv) + ", \"mode\": \"" + std::string(modeName(mode)) + "\"}";
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

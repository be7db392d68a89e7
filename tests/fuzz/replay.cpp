// SPDX-License-Identifier: MIT
// Feeds a fuzz target with the inputs of its corpus, a text of one input a line with odd bytes as
// "\x0a". Also turns such a text into the folder of files that a fuzzer works on, and back.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

std::string toText(const std::string &input)
{
    std::string text;
    for (const char byte : input) {
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, "\\x%02x", static_cast<unsigned char>(byte));
        const bool plain = byte >= ' ' && byte <= '~' && byte != '\\';
        text += plain ? std::string(1, byte) : escaped;
    }
    return text;
}

std::string fromText(const std::string &text)
{
    std::string input;
    for (size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\\') {
            input += text[at];
            continue;
        }
        input += char(std::stoi(text.substr(at + 2, 2), nullptr, 16));
        at += 3;
    }
    return input;
}

std::set<std::string> readCorpus(const char *path)
{
    std::set<std::string> inputs;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        inputs.insert(fromText(line));
    return inputs;
}

int pack(const char *folder)
{
    std::set<std::string> lines;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        lines.insert(toText({std::istreambuf_iterator<char>(file), {}}));
    }
    for (const std::string &line : lines)
        std::cout << line << '\n';
    return 0;
}

int unpack(const char *corpus, const std::filesystem::path &folder)
{
    int count = 0;
    for (const std::string &input : readCorpus(corpus))
        std::ofstream(folder / std::to_string(++count), std::ios::binary) << input;
    return 0;
}

int replay(const char *corpus)
{
    const std::set<std::string> inputs = readCorpus(corpus);
    for (const std::string &input : inputs) {
        std::cout << toText(input) << std::endl; // the last line tells which one broke a rule
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.data()), input.size());
    }
    std::cout << inputs.size() << " inputs held\n";
    return inputs.empty() ? 1 : 0;
}

} // namespace

/// Usage: CORPUS | unpack CORPUS FOLDER | pack FOLDER
int main(int argc, char **argv)
{
    const std::string_view verb = argc > 2 ? argv[1] : "";
    if (verb == "unpack" && argc == 4)
        return unpack(argv[2], argv[3]);
    if (verb == "pack")
        return pack(argv[2]);
    return argc == 2 ? replay(argv[1]) : 2;
}

// settings_fuzzer stream|bag|form [--seconds N] [--seed N] [--corpus FOLDER]... [--keep FOLDER] [--failures FOLDER]
// settings_fuzzer stream|bag|form FILE...
#include "fuzz/bag_target.h"
#include "fuzz/form_target.h"
#include "fuzz/stream_target.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <vector>

using namespace vellora::fuzz;

namespace {

int usage() {
    std::fputs("usage: settings_fuzzer stream|bag|form [--seconds N] [--seed N] [--corpus FOLDER]...\n"
               "                                       [--keep FOLDER] [--failures FOLDER]\n"
               "       settings_fuzzer stream|bag|form FILE...\n",
               stderr);
    return 2;
}

bool set_option(Options& options, const std::string& name, const std::string& value) {
    if (name == "--seconds") {
        options.seconds = std::atoi(value.c_str());
    } else if (name == "--seed") {
        options.seed = static_cast<std::uint32_t>(std::strtoul(value.c_str(), nullptr, 10));
    } else if (name == "--corpus") {
        options.corpora.push_back(value);
    } else if (name == "--keep") {
        options.keep = value;
    } else if (name == "--failures") {
        options.failures = value;
    } else {
        return false;
    }
    return true;
}

} // namespace

int main(int count, char** arguments) {
    std::vector<std::string> words(arguments + 1, arguments + count);
    const Target targets[] = {stream_target(), bag_target(), form_target()};
    const auto target =
        std::ranges::find_if(targets, [&](const Target& one) { return !words.empty() && words[0] == one.name; });
    if (target == std::end(targets)) {
        return usage();
    }
    // What the headless platform finds wrong is a fault, too.
    GTEST_FLAG_SET(throw_on_failure, true);
    if (words.size() > 1 && words[1].substr(0, 2) != "--") {
        for (std::size_t file = 1; file < words.size(); ++file) {
            replay(*target, words[file]);
        }
        return 0;
    }
    Options options;
    for (std::size_t at = 1; at < words.size(); at += 2) {
        if (at + 1 == words.size() || !set_option(options, words[at], words[at + 1])) {
            return usage();
        }
    }
    fuzz(*target, options);
    return 0;
}

#include "fuzz/fuzzer.h"

#include "fuzz/coverage.h"
#include "fuzz/mutation.h"

#include <sanitizer/common_interface_defs.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>
#include <utility>

// No input is large, so nothing made from it may be.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "max_allocation_size_mb=64:hard_rss_limit_mb=2000";
}

extern "C" const char* __ubsan_default_options();
extern "C" const char* __ubsan_default_options() {
    return "print_stacktrace=1:halt_on_error=1:abort_on_error=1";
}

namespace vellora::fuzz {

namespace {

namespace files = std::filesystem;

constexpr unsigned longest_run = 20; // seconds; a run takes less than a thousandth

struct Run {
    const Input* input = nullptr;
    std::uint64_t number = 0;
    std::uint32_t seed = 0;
    std::string failures;
};
Run current;

Input read(const files::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void write(const files::path& path, const Input& input) {
    files::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(input.data()), static_cast<std::streamsize>(input.size()));
}

std::string name_of(const Input& input) {
    std::uint64_t hash = 14695981039346656037U;
    for (const std::uint8_t byte : input) {
        hash = (hash ^ byte) * 1099511628211U;
    }
    char name[20];
    std::snprintf(name, sizeof name, "%016llx", static_cast<unsigned long long>(hash));
    return name;
}

void leave_input() {
    if (!current.input) {
        return;
    }
    const Input* const input = std::exchange(current.input, nullptr);
    const files::path file = files::path(current.failures) / name_of(*input);
    write(file, *input);
    std::fprintf(stderr, "\nseed %u, run %llu failed; its input of %zu bytes is %s\n", current.seed,
                 static_cast<unsigned long long>(current.number), input->size(), file.c_str());
}

[[noreturn]] void give_up(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    __sanitizer_print_stack_trace();
    leave_input();
    _exit(1);
}

void watch_for_faults() {
    __sanitizer_set_death_callback(leave_input);
    std::set_terminate([] { give_up("an exception that nobody expects"); });
    std::signal(SIGABRT, [](int) { give_up("aborted"); });
    std::signal(SIGALRM, [](int) { give_up("a run that does not end"); });
}

class Session {
public:
    Session(const Target& target, const Options& options) : target_(target), mutation_(options.seed, target.words) {}

    void start_from(const files::path& folder) {
        std::vector<Input> inputs;
        if (files::is_directory(folder)) {
            for (const auto& entry : files::directory_iterator(folder)) {
                inputs.push_back(read(entry.path()));
            }
        }
        // Of inputs that reach the same the shortest stays; the order of a folder is no order.
        std::ranges::sort(
            inputs, [](const Input& a, const Input& b) { return a.size() != b.size() ? a.size() < b.size() : a < b; });
        for (Input& input : inputs) {
            try_out(std::move(input));
        }
    }

    void step() { try_out(mutation_.next(pool_)); }

    void try_out(Input input) {
        current.input = &input;
        ++current.number;
        alarm(longest_run);
        coverage_.start();
        target_.run(input);
        coverage_.stop();
        current.input = nullptr;
        const std::size_t places = coverage_.seen();
        if (coverage_.is_new()) {
            if (coverage_.seen() > places) {
                worth_keeping_.push_back(input);
            }
            pool_.push_back(std::move(input));
        }
    }

    void keep(const files::path& folder) const {
        for (const Input& input : worth_keeping_) {
            write(folder / name_of(input), input);
        }
    }

    void report() const {
        std::printf("%s: %llu runs, %zu inputs reach %zu places\n", target_.name.c_str(),
                    static_cast<unsigned long long>(current.number), pool_.size(), coverage_.seen());
    }

private:
    const Target& target_;
    Mutation mutation_;
    Coverage coverage_;
    std::vector<Input> pool_;
    std::vector<Input> worth_keeping_;
};

} // namespace

void require(bool holds, const char* what) {
    if (!holds) {
        give_up(what);
    }
}

void fuzz(const Target& target, const Options& options) {
    current.seed = options.seed;
    current.failures = options.failures;
    watch_for_faults();
    Session session(target, options);
    session.try_out({});
    for (const std::string& folder : options.corpora) {
        session.start_from(folder);
    }
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(options.seconds);
    while (std::chrono::steady_clock::now() < end) {
        session.step();
    }
    alarm(0);
    session.report();
    if (!options.keep.empty()) {
        session.keep(options.keep);
    }
}

void replay(const Target& target, const std::string& file) {
    target.run(read(file));
    std::printf("%s: %s went well\n", target.name.c_str(), file.c_str());
}

} // namespace vellora::fuzz

// The program around a driver. Inputs are those of the corpus, changed at random from a seed. One
// that breaks something, or does not come to an end, is written into a file before the program
// dies.

#include "fuzz/events/driver.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <unistd.h>
#include <vector>

extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*)());

namespace {

using Input = std::vector<std::uint8_t>;
namespace fs = std::filesystem;

constexpr std::size_t longest_input = 600;
constexpr unsigned longest_try = 60; // seconds

struct Options {
    unsigned long seed = 1, runs = 100;
    double seconds = 1e9;
    std::string findings = "finding-";
    std::vector<fs::path> corpus;
};

std::string program, prefix;
Input input;
bool is_trying = false;

// On the way out: no more than the writing of a file.
void tell_finding() {
    if (!is_trying) return;
    is_trying = false;
    std::size_t hash = 14695981039346656037u;
    for (const std::uint8_t byte : input) hash = (hash ^ byte) * 1099511628211u;
    const std::string file = prefix + std::to_string(hash);
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(input.data()),
               static_cast<std::streamsize>(input.size()));
    std::fprintf(stderr, "repeat with: %s %s\n", program.c_str(), file.c_str());
}

void die_of(int signal) {
    if (signal == SIGALRM) std::fprintf(stderr, "ERROR: an input took over a minute\n");
    tell_finding();
    std::signal(SIGABRT, SIG_DFL);
    std::abort();
}

void try_one() {
    is_trying = true;
    ::alarm(longest_try);
    fuzz::Bytes bytes(input.data(), input.size());
    fuzz::try_input(bytes);
    ::alarm(0);
    is_trying = false;
}

Input read(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error(path.string() + " cannot be read");
    return Input(std::istreambuf_iterator<char>(file), {});
}

// In the order of their names.
void read_folder(const fs::path& folder, std::vector<Input>& corpus) {
    std::vector<fs::path> files;
    for (const auto& it : fs::directory_iterator(folder)) files.push_back(it.path());
    std::sort(files.begin(), files.end());
    for (const fs::path& file : files) corpus.push_back(read(file));
}

class Mutator {
  public:
    explicit Mutator(unsigned long seed) : _random(seed) {}

    Input changed(const std::vector<Input>& corpus) {
        Input made = corpus[below(corpus.size())];
        for (std::size_t changes = 1 + below(16); changes > 0; --changes) change(made, corpus);
        if (made.size() > longest_input) made.resize(longest_input);
        return made;
    }

  private:
    // The library's distributions differ between libraries; this does not.
    std::size_t below(std::size_t count) { return static_cast<std::size_t>(_random() % count); }

    void change(Input& made, const std::vector<Input>& corpus) {
        const std::size_t at = below(made.size() + 1);
        const auto place = made.begin() + static_cast<std::ptrdiff_t>(at);
        switch (below(5)) {
        case 0:
            if (at < made.size()) made[at] = static_cast<std::uint8_t>(_random());
            break;
        case 1:
            made.erase(place,
                       place + static_cast<std::ptrdiff_t>(std::min(below(20), made.size() - at)));
            break;
        case 2: {
            Input some(1 + below(60));
            for (std::uint8_t& byte : some) byte = static_cast<std::uint8_t>(_random());
            made.insert(place, some.begin(), some.end());
            break;
        }
        case 3: {
            const Input& other = corpus[below(corpus.size())];
            const auto from = static_cast<std::ptrdiff_t>(below(other.size() + 1));
            made.insert(place, other.begin() + from, other.end());
            break;
        }
        default:
            made.resize(at);
            break;
        }
    }

    std::mt19937_64 _random;
};

unsigned long fuzz_corpus(const Options& options, const std::vector<Input>& corpus) {
    const auto start = std::chrono::steady_clock::now();
    const auto seconds = [&] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    Mutator mutator(options.seed);
    unsigned long runs = 0;
    for (; runs < options.runs && seconds() < options.seconds; ++runs) {
        input = runs < corpus.size() ? corpus[runs] : mutator.changed(corpus);
        try_one();
    }
    return runs;
}

Options read_options(int count, char** words) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string word = words[i];
        if (!word.starts_with("--")) {
            options.corpus.emplace_back(word);
            continue;
        }
        const std::string value = i + 1 < count ? words[++i] : "";
        if (word == "--seed")
            options.seed = std::stoul(value);
        else if (word == "--runs")
            options.runs = std::stoul(value);
        else if (word == "--seconds")
            options.runs = -1ul, options.seconds = std::stod(value);
        else if (word == "--findings" && !value.empty())
            options.findings = value;
        else
            throw std::invalid_argument("unknown option " + word);
    }
    if (options.corpus.empty()) throw std::invalid_argument("no corpus");
    return options;
}

} // namespace

int main(int count, char** words) {
    program = words[0];
    try {
        const Options options = read_options(count, words);
        prefix = options.findings;
        for (const int signal : {SIGABRT, SIGALRM}) std::signal(signal, die_of);
        if (__sanitizer_set_death_callback) __sanitizer_set_death_callback(tell_finding);
        std::vector<Input> corpus;
        unsigned long runs = 0;
        for (const fs::path& path : options.corpus) {
            if (fs::is_directory(path)) {
                read_folder(path, corpus);
                continue;
            }
            input = read(path);
            try_one();
            ++runs;
        }
        if (!corpus.empty()) runs += fuzz_corpus(options, corpus);
        std::printf("%lu inputs\n", runs);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr,
                     "error: %s\nusage: %s [--seed N] [--runs N | --seconds N] [--findings PREFIX] "
                     "FILE|FOLDER...\n",
                     error.what(), program.c_str());
        return 2;
    }
}

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/random/diary.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <unistd.h>

// With a sanitizer built in, what it wants to be called with before it ends the program.
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

namespace boulix::testing_support::diary {

namespace {

constexpr std::size_t kept = 30;
constexpr std::size_t width = 240;

// In plain memory: a handler of signals may do no more than write it out.
struct Line {
    std::array<char, width> text{};
    std::size_t length = 0;
};
std::array<Line, kept + 1> lines; // the first one is the heading
std::size_t noted = 0;

using Clock = std::chrono::steady_clock;
Clock::time_point began;
std::string current;
Clock::duration longest{};
std::string slowest;

void put(Line &line, const std::string &text) {
    line.length = std::min(text.size(), width - 1);
    std::copy_n(text.begin(), line.length, line.text.begin());
    line.text.at(line.length++) = '\n';
}

void forEachLine(void (*use)(const Line &line, void *where), void *where) {
    use(lines[0], where);
    for (std::size_t i = noted > kept ? noted - kept : 0; i < noted; ++i)
        use(lines.at(1 + i % kept), where);
}

void writeOut() {
    forEachLine(
        [](const Line &line, void *) {
            [[maybe_unused]] const auto ignored =
                write(STDERR_FILENO, line.text.data(), line.length);
        },
        nullptr);
}

constexpr std::array<int, 5> deadly = {SIGSEGV, SIGBUS, SIGFPE, SIGABRT, SIGALRM};
std::array<struct sigaction, deadly.size()> before;

/// Tells the last actions and leaves the rest to whoever was there before.
void onDeath(int signal) {
    if (signal == SIGALRM) {
        constexpr char hung[] = "The program did not answer any more.\n";
        [[maybe_unused]] const auto ignored = write(STDERR_FILENO, hung, sizeof hung - 1);
    }
    writeOut();
    for (std::size_t i = 0; i < deadly.size(); ++i)
        sigaction(deadly.at(i), &before.at(i), nullptr);
    if (signal == SIGALRM)
        std::abort();
}

void watchForDeath() {
    struct sigaction action {};
    action.sa_handler = onDeath;
    for (std::size_t i = 0; i < deadly.size(); ++i)
        sigaction(deadly.at(i), &action, &before.at(i));
    if (__sanitizer_set_death_callback)
        __sanitizer_set_death_callback(writeOut);
}

} // namespace

void open(unsigned seed) {
    static const bool once = (watchForDeath(), true);
    static_cast<void>(once);
    noted = 0;
    current.clear();
    longest = {};
    put(lines[0], "The last steps of the player with the seed " + std::to_string(seed) + ":");
}

void note(int step, const std::string &action) {
    const Clock::time_point now = Clock::now();
    if (!current.empty() && now - began > longest) {
        longest = now - began;
        slowest = current;
    }
    began = now;
    current = std::to_string(step) + " " + action;
    put(lines.at(1 + noted % kept), current);
    ++noted;
    alarm(patienceSeconds);
}

std::string slowestStep() {
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(longest);
    return std::to_string(milliseconds.count()) + " ms: " + slowest;
}

void close() {
    alarm(0);
}

std::string lastActions() {
    std::string all;
    forEachLine(
        [](const Line &line, void *where) {
            static_cast<std::string *>(where)->append(line.text.data(), line.length);
        },
        &all);
    return all;
}

} // namespace boulix::testing_support::diary

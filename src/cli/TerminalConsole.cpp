// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/TerminalConsole.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <string_view>
#include <thread>

#include <sys/ioctl.h>
#include <sys/select.h>
#include <unistd.h>

namespace quillmark::cli {

namespace {

// The other screen, which leaves what the terminal showed untouched; no cursor; no line that runs on.
constexpr std::string_view enterSequence = "\x1b[?1049h\x1b[?25l\x1b[?7l\x1b[0m\x1b[2J";
constexpr std::string_view leaveSequence = "\x1b[0m\x1b[?7h\x1b[?25h\x1b[?1049l";

/// They come in while the console waits, and at no other time.
constexpr std::array awaitedSignals = {SIGINT, SIGWINCH, SIGTSTP, SIGCONT};
/// They end the program wherever it is: also while a terminal takes nothing that is written to it.
constexpr std::array endingSignals = {SIGTERM, SIGHUP, SIGQUIT, SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL};

constexpr int signalLimit = 64;
volatile std::sig_atomic_t hasArrived[signalLimit] = {};
TerminalConsole *taken = nullptr; ///< the one that has the screen

void note(int signal)
{
    hasArrived[signal] = 1;
}

bool takeNotice(int signal)
{
    const bool has = hasArrived[signal] != 0;
    hasArrived[signal] = 0;
    return has;
}

void setAction(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    ::sigaction(signal, &action, nullptr);
}

/// One that was started to live on after its terminal ignores hang-ups, and goes on ignoring them.
bool isIgnored(int signal)
{
    struct sigaction action = {};
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

enum class Direction { In, Out };

/// Whether something can be read or written before the patience ends. Calls nothing but what a signal handler
/// may call; poll(2) knows no terminals on macOS.
bool isReady(int descriptor, Direction direction, const timespec &patience)
{
    fd_set descriptors;
    FD_ZERO(&descriptors);
    FD_SET(descriptor, &descriptors);
    int ready = 0;
    do {
        ready = ::pselect(descriptor + 1, direction == Direction::In ? &descriptors : nullptr,
                          direction == Direction::Out ? &descriptors : nullptr, nullptr, &patience, nullptr);
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

/// Gives up on a terminal that takes nothing any more: it must not keep the program from its end.
void writeAll(std::string_view text)
{
    constexpr timespec patience = {.tv_sec = 0, .tv_nsec = 500'000'000};
    while (!text.empty() && isReady(STDOUT_FILENO, Direction::Out, patience)) {
        const auto count = ::write(STDOUT_FILENO, text.data(), text.size());
        if (count < 0 && errno != EINTR && errno != EAGAIN)
            return;
        text.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
}

constexpr char escape = '\x1b';

/// How much of what was typed is the first key: a character, Esc and a character, or a sequence as arrows
/// send it, which ends with a letter.
std::size_t keyLength(std::string_view keys)
{
    if (keys.front() != escape || keys.size() < 2)
        return 1;
    if (keys[1] != '[' && keys[1] != 'O')
        return 2;
    const auto end = std::find_if(keys.begin() + 2, keys.end(), [](char c) { return c >= '@' && c <= '~'; });
    return end == keys.end() ? keys.size() : static_cast<std::size_t>(end - keys.begin()) + 1;
}

bool isDumb()
{
    const char *terminal = std::getenv("TERM");
    return !terminal || std::string_view(terminal).empty() || std::string_view(terminal) == "dumb";
}

timespec timeUntil(Console::Time time, Console::Time now)
{
    const auto left = std::max(std::chrono::duration_cast<std::chrono::nanoseconds>(time - now),
                               std::chrono::nanoseconds(0))
                          .count();
    constexpr std::int64_t second = 1'000'000'000;
    return {.tv_sec = static_cast<time_t>(left / second), .tv_nsec = static_cast<long>(left % second)};
}

} // namespace

TerminalConsole::TerminalConsole(bool isTerminal)
    : m_canDraw(isTerminal && !isDumb())
{}

TerminalConsole::~TerminalConsole()
{
    giveBackScreen();
}

bool TerminalConsole::has256Colors() const
{
    const char *terminal = std::getenv("TERM");
    const char *colors = std::getenv("COLORTERM");
    return (colors && *colors) || (terminal && std::string_view(terminal).contains("256color"));
}

Console::Size TerminalConsole::size() const
{
    winsize size = {};
    if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0)
        return {80, 24};
    return {size.ws_col, size.ws_row};
}

void TerminalConsole::takeScreen()
{
    if (m_hasTaken)
        return;
    m_readsKeys = ::isatty(STDIN_FILENO) == 1 && ::tcgetattr(STDIN_FILENO, &m_attributes) == 0;
    m_hasTaken = true;
    taken = this;
    installHandlers();
    enterScreen();
}

void TerminalConsole::giveBackScreen()
{
    if (!m_hasTaken)
        return;
    leaveScreen();
    removeHandlers();
    m_hasTaken = false;
    taken = nullptr;
}

void TerminalConsole::enterScreen()
{
    if (m_readsKeys) {
        termios attributes = m_attributes;
        attributes.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
        // Ctrl-S would stop the drawing, and with it the program.
        attributes.c_iflag &= ~static_cast<tcflag_t>(IXON);
        // A program in the background is stopped here until it comes to the front.
        while (::tcsetattr(STDIN_FILENO, TCSANOW, &attributes) != 0 && errno == EINTR) {
        }
    }
    m_isOnScreen = 1;
    writeAll(enterSequence);
}

/// Calls nothing but what a signal handler may call.
void TerminalConsole::leaveScreen()
{
    // In the background the terminal is another program's.
    if (m_readsKeys && ::tcgetpgrp(STDIN_FILENO) == ::getpgrp()) {
        ::tcflush(STDIN_FILENO, TCIFLUSH);
        ::tcsetattr(STDIN_FILENO, TCSANOW, &m_attributes);
    }
    // One who is ended while it is stopped has given it back already.
    if (m_isOnScreen != 0)
        writeAll(leaveSequence);
    m_isOnScreen = 0;
}

void TerminalConsole::installHandlers()
{
    sigset_t awaited;
    sigemptyset(&awaited);
    for (const int signal : awaitedSignals) {
        takeNotice(signal);
        if (!isIgnored(signal))
            sigaddset(&awaited, signal);
    }
    // Before they are handled: one that came in between would be noted, and nobody wakened.
    ::pthread_sigmask(SIG_BLOCK, &awaited, &m_mask);
    for (const int signal : awaitedSignals) {
        if (!isIgnored(signal))
            setAction(signal, note);
    }
    for (const int signal : endingSignals) {
        if (!isIgnored(signal))
            setAction(signal, &TerminalConsole::giveBackAndDie);
    }
}

void TerminalConsole::removeHandlers()
{
    const auto restore = [](int signal) {
        if (!isIgnored(signal))
            setAction(signal, SIG_DFL);
    };
    std::ranges::for_each(awaitedSignals, restore);
    std::ranges::for_each(endingSignals, restore);
    ::pthread_sigmask(SIG_SETMASK, &m_mask, nullptr);
}

void TerminalConsole::giveBackAndDie(int signal)
{
    if (taken)
        taken->leaveScreen();
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

void TerminalConsole::suspend()
{
    leaveScreen();
    sigset_t stop;
    sigemptyset(&stop);
    sigaddset(&stop, SIGTSTP);
    setAction(SIGTSTP, SIG_DFL);
    ::raise(SIGTSTP); // pending while it is blocked
    ::pthread_sigmask(SIG_UNBLOCK, &stop, nullptr);
    // Stopped here, and going on from here.
    ::pthread_sigmask(SIG_BLOCK, &stop, nullptr);
    setAction(SIGTSTP, note);
}

/// Whether one came in that `event` tells of.
bool TerminalConsole::handleSignals(Event &event)
{
    if (takeNotice(SIGINT)) {
        event = Event::EndAsked;
        return true;
    }
    const bool stops = takeNotice(SIGTSTP);
    if (stops)
        suspend();
    // One who was stopped without a word (SIGSTOP) finds the terminal as others have left it.
    if (takeNotice(SIGCONT) || stops) {
        takeNotice(SIGWINCH);
        enterScreen();
        event = Event::Resumed;
        return true;
    }
    event = Event::Resized;
    return takeNotice(SIGWINCH);
}

/// Whether one of the keys that were pressed asks for the end.
bool TerminalConsole::asksForEnd()
{
    constexpr timespec patience = {.tv_sec = 0, .tv_nsec = 50'000'000};
    std::array<char, 64> buffer{};
    const auto count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count <= 0) {
        m_readsKeys = count < 0 && errno == EINTR;
        return false;
    }
    std::string_view keys(buffer.data(), static_cast<std::size_t>(count));
    while (!keys.empty()) {
        // Other keys send Esc and more; over a slow line the rest comes a little later.
        if (keys.front() == escape && keys.size() == 1)
            return !isReady(STDIN_FILENO, Direction::In, patience);
        if (keys.front() == 'q' || keys.front() == 'Q')
            return true;
        keys.remove_prefix(keyLength(keys));
    }
    return false;
}

Console::Event TerminalConsole::waitUntil(Time time)
{
    if (!m_hasTaken) {
        std::this_thread::sleep_until(time);
        return Event::TimeUp;
    }
    for (;;) {
        fd_set descriptors;
        FD_ZERO(&descriptors);
        if (m_readsKeys)
            FD_SET(STDIN_FILENO, &descriptors);
        const timespec left = timeUntil(time, now());
        const int ready = ::pselect(STDIN_FILENO + 1, &descriptors, nullptr, nullptr, &left, &m_mask);
        Event event = Event::TimeUp;
        if (ready < 0 && errno == EINTR && handleSignals(event))
            return event;
        if (ready > 0 && asksForEnd())
            return Event::EndAsked;
        if (ready == 0 && now() >= time)
            return Event::TimeUp;
    }
}

} // namespace quillmark::cli

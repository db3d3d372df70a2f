// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/AccountScripts.h"
#include "server/Console.h"
#include "server/Database.h"
#include "server/DemoAccount.h"
#include "server/EnvironmentScripts.h"
#include "server/HistoryService.h"
#include "server/Listeners.h"
#include "server/LoginThrottle.h"
#include "server/Options.h"
#include "server/PrivateFiles.h"
#include "server/ProfileScripts.h"
#include "server/ProfileStore.h"
#include "server/Schema.h"
#include "server/SessionStore.h"
#include "server/TlsCertificate.h"
#include "server/UserStore.h"

#include <sodium.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
// SIGUSR1 is the listeners' own: one of them has ended.
sigset_t stopSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : { SIGINT, SIGTERM, SIGUSR1 })
        sigaddset(&signals, signal);
    return signals;
}

std::optional<OpenWeatherClient> upstreamFromEnvironment()
{
    const char *key = std::getenv("OPENWEATHERMAP_API_KEY");
    if (key == nullptr || *key == '\0')
        return std::nullopt;
    return OpenWeatherClient(key);
}

int serve(const Options &options, const sigset_t &signals)
{
    ensurePrivateDirectory(options.dataDir);
    const TlsFiles tls = ensureTlsCertificate(options.dataDir + "/tls");
    Database db(options.dataDir + "/devserver.sqlite");
    createSchema(db);
    UserStore users(db);
    ProfileStore profiles(db);
    SessionStore sessions(db);
    LoginThrottle throttle(std::chrono::seconds(options.throttleDelay));
    DemoAccount::ensure(users);

    std::optional<OpenWeatherClient> upstream = upstreamFromEnvironment();
    const bool simulated = !upstream;
    AccountScripts accountScripts(users, sessions, throttle,
                                  options.printResetPasswords ? AccountScripts::ResetPasswords::Printed : AccountScripts::ResetPasswords::Hidden);
    ProfileScripts profileScripts(sessions, profiles);
    EnvironmentScripts environmentScripts(std::move(upstream));
    ScriptRouter router;
    accountScripts.addTo(router);
    profileScripts.addTo(router);
    environmentScripts.addTo(router);
    const HistoryService history(options.historyKey);

    Listeners listeners(tls, router, history);
    listeners.bind(options.host, options.httpsPort, options.httpPort);
    listeners.start([] { kill(getpid(), SIGUSR1); });
    if (!listeners.waitUntilServing())
        throw std::runtime_error("the listeners did not start");
    Console::printLine("Tarnelo development backend ready: https=" + std::to_string(listeners.httpsPort()) + " http=" + std::to_string(listeners.httpPort())
                       + " ca=" + tls.certificate);
    Console::printLine(std::string("Demo account: ") + DemoAccount::email + " / " + DemoAccount::password);
    Console::printLine(simulated ? "Air quality and weather: simulated (set OPENWEATHERMAP_API_KEY for real readings)"
                                 : "Air quality and weather: OpenWeatherMap (simulated whenever it fails)");

    int received = 0;
    sigwait(&signals, &received);
    listeners.stop();
    if (received == SIGUSR1) {
        std::cerr << "tarnelo-devserver: a listener stopped unexpectedly\n";
        return 1;
    }
    Console::printLine("Stopped.");
    return 0;
}
} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (std::any_of(args.begin(), args.end(), [](const std::string &arg) { return arg == "--help" || arg == "-h"; })) {
        std::cout << usageText();
        return 0;
    }
    const std::optional<Options> options = parseOptions(args);
    if (!options)
        return 2;
    if (sodium_init() < 0) {
        std::cerr << "tarnelo-devserver: libsodium could not start\n";
        return 1;
    }
    // Everything the server writes (the database and its companions, the TLS
    // key) is its owner's alone, whatever the shell's umask.
    umask(077);
    // A client that hangs up mid-answer must not kill the server through a write.
    std::signal(SIGPIPE, SIG_IGN);
    // Blocked before any thread starts, so that every thread inherits the mask
    // and only sigwait() in serve() receives them.
    const sigset_t signals = stopSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    try {
        return serve(*options, signals);
    } catch (const std::exception &error) {
        std::cerr << "tarnelo-devserver: " << error.what() << '\n';
        return 1;
    }
}

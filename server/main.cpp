// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/AccountScripts.h"
#include "server/Console.h"
#include "server/Database.h"
#include "server/DemoAccount.h"
#include "server/EnvironmentScripts.h"
#include "server/HistoryService.h"
#include "server/Listeners.h"
#include "server/LoginThrottle.h"
#include "server/OpenMeteoSource.h"
#include "server/OpenWeatherSource.h"
#include "server/Options.h"
#include "server/PrivateFiles.h"
#include "server/ProfileScripts.h"
#include "server/ProfileStore.h"
#include "server/ReadingSources.h"
#include "server/Schema.h"
#include "server/SessionStore.h"
#include "server/TlsCertificate.h"
#include "server/UpstreamCache.h"
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

std::vector<std::unique_ptr<ReadingSource>> upstreams(const Options &options, UpstreamCache &cache)
{
    const std::chrono::milliseconds deadline(options.upstreamDeadlineMs);
    const char *openWeatherKey = std::getenv("OPENWEATHERMAP_API_KEY");
    std::vector<std::unique_ptr<ReadingSource>> sources;
    for (const std::string &name : options.upstreams) {
        if (name == "open-meteo")
            sources.push_back(
                std::make_unique<OpenMeteoSource>(OpenMeteoSource::Urls { options.openMeteoAirUrl, options.openMeteoWeatherUrl }, deadline, cache));
        else if (name == "openweathermap" && openWeatherKey != nullptr && *openWeatherKey != '\0')
            sources.push_back(std::make_unique<OpenWeatherSource>(openWeatherKey, deadline, cache));
    }
    return sources;
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

    UpstreamCache cache(db, std::chrono::seconds(options.upstreamRetrySeconds));
    ReadingSources readings(upstreams(options, cache));
    AccountScripts accountScripts(users, sessions, throttle,
                                  options.printResetPasswords ? AccountScripts::ResetPasswords::Printed : AccountScripts::ResetPasswords::Hidden);
    ProfileScripts profileScripts(sessions, profiles);
    EnvironmentScripts environmentScripts(readings);
    ScriptRouter router;
    accountScripts.addTo(router);
    profileScripts.addTo(router);
    environmentScripts.addTo(router);
    const HistoryService history(options.historyKey, readings);

    Listeners listeners(tls, router, history);
    listeners.bind(options.host, options.httpsPort, options.httpPort);
    listeners.start([] { kill(getpid(), SIGUSR1); });
    if (!listeners.waitUntilServing())
        throw std::runtime_error("the listeners did not start");
    Console::printLine("Tarnelo development backend ready: https=" + std::to_string(listeners.httpsPort()) + " http=" + std::to_string(listeners.httpPort())
                       + " ca=" + tls.certificate);
    Console::printLine(std::string("Demo account: ") + DemoAccount::email + " / " + DemoAccount::password);
    Console::printLine("Air quality, weather and history: " + readings.description());

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

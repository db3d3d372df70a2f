// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/UpstreamGet.h"

#include <httplib.h>

#include <future>
#include <memory>
#include <thread>

namespace
{
constexpr size_t largestBody = 2 * 1024 * 1024;

struct Exchange {
    explicit Exchange(const std::string &baseUrl)
        : client(baseUrl)
    {
    }
    httplib::Client client;
    std::string body;
};

std::string describe(const httplib::Result &result)
{
    if (!result)
        return result.error() == httplib::Error::Connection ? "no connection" : httplib::to_string(result.error());
    return "HTTP status " + std::to_string(result->status);
}
} // namespace

std::string upstreamGet(const std::string &baseUrl, const std::string &target, std::chrono::milliseconds deadline)
{
    auto exchange = std::make_shared<Exchange>(baseUrl);
    if (!exchange->client.is_valid())
        throw UpstreamError("not a usable address: " + baseUrl);
    exchange->client.enable_server_certificate_verification(true);
    exchange->client.set_connection_timeout(deadline);
    exchange->client.set_read_timeout(deadline);
    exchange->client.set_write_timeout(deadline);

    // The exchange owns what the thread touches, so that the thread may outlive a caller that gave up on it.
    std::packaged_task<std::string()> task([exchange, baseUrl, target] {
        const httplib::Result result = exchange->client.Get(target, [&exchange](const char *data, size_t length) {
            exchange->body.append(data, length);
            return exchange->body.size() <= largestBody;
        });
        if (!result || result->status != 200)
            throw UpstreamError(baseUrl + ": " + (exchange->body.size() > largestBody ? "answer larger than 2 MiB" : describe(result)));
        return std::move(exchange->body);
    });
    std::future<std::string> answer = task.get_future();
    std::thread(std::move(task)).detach();
    if (answer.wait_for(deadline) != std::future_status::ready) {
        exchange->client.stop();
        throw UpstreamError(baseUrl + ": no complete answer within " + std::to_string(deadline.count()) + " ms");
    }
    return answer.get();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/RequestLog.h"

#include "server/Console.h"

namespace
{
bool isSecretKey(const std::string &encodedKey)
{
    const std::string key = httplib::detail::decode_url(encodedKey, true);
    return key == "password" || key == "passcode" || key == "appid" || key == "userid" || key == "user_id";
}

std::string maskedQuery(const std::string &query)
{
    std::string masked;
    size_t begin = 0;
    while (begin <= query.size()) {
        const size_t end = std::min(query.find('&', begin), query.size());
        const std::string pair = query.substr(begin, end - begin);
        const size_t equals = pair.find('=');
        const std::string key = pair.substr(0, equals);
        masked += (begin > 0 ? "&" : "") + (equals != std::string::npos && isSecretKey(key) ? key + "=***" : pair);
        begin = end + 1;
    }
    return masked;
}

// Printable ASCII only, spaces included in what is escaped, so that the
// target reads as one word however it was sent.
std::string printable(const std::string &text)
{
    return Console::percentEscaped(text, [](unsigned char byte) { return byte > 0x20 && byte < 0x7f; });
}
} // namespace

std::string requestLogLine(const httplib::Request &request, const httplib::Response &response)
{
    if (request.method.empty())
        return "(malformed request) -> " + std::to_string(response.status);
    const std::string &target = request.target.empty() ? request.path : request.target;
    const size_t question = target.find('?');
    const std::string shown = question == std::string::npos ? target : target.substr(0, question + 1) + maskedQuery(target.substr(question + 1));
    std::string line = printable(request.method) + " " + printable(shown) + " -> " + std::to_string(response.status);
    const std::string source = response.get_header_value(readingSourceHeader);
    if (!source.empty())
        line += " [" + source + "]";
    return line;
}

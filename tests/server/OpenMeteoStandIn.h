// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <httplib.h>

#include <atomic>
#include <thread>

// Open-Meteo's air-quality and forecast APIs on loopback, answering the recorded answers in
// tests/server/open-meteo/ moved forward so that their current hour is now's. A place north
// of 35° gets Berlin's answers, any other Nairobi's (outside Europe: no pollen, no ammonia).
class OpenMeteoStandIn
{
public:
    enum class Behaviour {
        Recorded,
        Stall, // accepts and answers nothing until told otherwise, for at most 20 s
        MissingField, // leaves out current pm2_5 and temperature_2m
    };

    OpenMeteoStandIn();
    ~OpenMeteoStandIn();

    // The backend options that make it ask this stand-in and no other upstream.
    QStringList backendOptions() const;
    void setBehaviour(Behaviour behaviour) { m_behaviour = behaviour; }
    int calls() const { return m_calls; }

private:
    void answer(const httplib::Request &request, httplib::Response &response, const char *recording);

    httplib::Server m_server;
    int m_port = 0;
    std::thread m_thread;
    std::atomic<int> m_calls { 0 };
    std::atomic<Behaviour> m_behaviour { Behaviour::Recorded };
};

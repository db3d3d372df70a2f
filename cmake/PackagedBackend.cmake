# SPDX-License-Identifier: GPL-3.0-or-later
# The backend an installed Tarnelo talks to: the development backend, run for
# each user by systemd on fixed loopback ports, keeping its data and its
# self-signed certificate in the user's data directory. A packaged build
# (TARNELO_PACKAGED_BACKEND) makes these the app's built-in service settings;
# the environment variables still replace them, as in development.
option(TARNELO_PACKAGED_BACKEND "Point the app at the backend the package runs on loopback" OFF)
set(TARNELO_PACKAGED_HTTPS_PORT 48443 CACHE STRING "Loopback port of the packaged backend's HTTPS listener")
set(TARNELO_PACKAGED_HTTP_PORT 48080 CACHE STRING "Loopback port of the packaged backend's history listener")
# Loopback only, and the same in every copy of the app: it keeps strangers'
# requests out of nothing, so it need not be secret.
set(TARNELO_PACKAGED_HISTORY_KEY "5461726e656c6f206c6f6f706261636b" CACHE STRING "History key the packaged app and backend share")
# The backend's directory within the user's data directory.
set(TARNELO_PACKAGED_DATA_NAME "tarnelo-backend")
foreach(port IN ITEMS TARNELO_PACKAGED_HTTPS_PORT TARNELO_PACKAGED_HTTP_PORT)
    if(NOT ${port} MATCHES "^[1-9][0-9]*$" OR ${port} GREATER 65535)
        message(FATAL_ERROR "${port} must be a port number, not '${${port}}'")
    endif()
endforeach()

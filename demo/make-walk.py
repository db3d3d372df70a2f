#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the demo NMEA log that `make run` replays: a walk through central
Nairobi at walking pace, one RMC and one GGA sentence a second.

The waypoints are real street corners and landmarks of the city centre; the
positions between them are interpolated along straight lines.

    demo/make-walk.py > demo/nairobi-walk.nmea
"""
import datetime
import math
import sys

# (latitude, longitude, what is there)
WAYPOINTS = [
    (-1.28876, 36.82325, "Kenyatta International Convention Centre"),
    (-1.28682, 36.82393, "City Hall Way at Taifa Road"),
    (-1.28528, 36.82268, "Hilton, Mama Ngina Street"),
    (-1.28377, 36.82327, "Moi Avenue at Kenyatta Avenue"),
    (-1.28290, 36.82176, "Jamia Mosque"),
    (-1.28402, 36.81996, "Kenyatta Avenue at Kimathi Street"),
    (-1.28560, 36.81843, "Kenyatta Avenue at Koinange Street"),
    (-1.28880, 36.81820, "Uhuru Park gate"),
]
SPEED = 1.4  # metres per second
START = datetime.datetime(2026, 11, 22, 7, 30, 0, tzinfo=datetime.timezone.utc)
EARTH_RADIUS = 6371000.0


def distance(a, b):
    lat = math.radians((a[0] + b[0]) / 2)
    dy = math.radians(b[0] - a[0]) * EARTH_RADIUS
    dx = math.radians(b[1] - a[1]) * EARTH_RADIUS * math.cos(lat)
    return math.hypot(dx, dy)


def bearing(a, b):
    lat = math.radians((a[0] + b[0]) / 2)
    dy = b[0] - a[0]
    dx = (b[1] - a[1]) * math.cos(lat)
    return (math.degrees(math.atan2(dx, dy)) + 360) % 360


def positions():
    """Yields (latitude, longitude, course) once a second along the walk."""
    for a, b in zip(WAYPOINTS, WAYPOINTS[1:]):
        steps = max(1, round(distance(a, b) / SPEED))
        course = bearing(a, b)
        for i in range(steps):
            t = i / steps
            yield a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t, course
    last = WAYPOINTS[-1]
    yield last[0], last[1], 0.0


def angle(value, degree_digits, positive, negative):
    hemisphere = positive if value >= 0 else negative
    value = abs(value)
    degrees = int(value)
    minutes = (value - degrees) * 60
    return f"{degrees:0{degree_digits}d}{minutes:07.4f}", hemisphere


def sentence(body):
    checksum = 0
    for char in body:
        checksum ^= ord(char)
    return f"${body}*{checksum:02X}"


def main():
    knots = SPEED * 3600 / 1852
    for second, (lat, lon, course) in enumerate(positions()):
        when = START + datetime.timedelta(seconds=second)
        time = when.strftime("%H%M%S.00")
        date = when.strftime("%d%m%y")
        lat_text, ns = angle(lat, 2, "N", "S")
        lon_text, ew = angle(lon, 3, "E", "W")
        print(sentence(f"GPRMC,{time},A,{lat_text},{ns},{lon_text},{ew},{knots:.1f},{course:.1f},{date},,,A"))
        print(sentence(f"GPGGA,{time},{lat_text},{ns},{lon_text},{ew},1,08,0.9,1661.0,M,-13.8,M,,"))
    return 0


if __name__ == "__main__":
    sys.exit(main())

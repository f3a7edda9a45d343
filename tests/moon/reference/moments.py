#!/usr/bin/env python3
# Computes the rows of moonMoments*.inc without the program's code: by Python's calendar and zones.
#   moments.py ZONE SECONDS...   prints the rows of these moments
#   moments.py --check FILE...   prints the rows that differ; status 1 where any does
import re
import sys
from datetime import datetime, timedelta, timezone
from zoneinfo import ZoneInfo

FULL_MOONS = """5.1.2015 4:53, 3.2.2015 23:09, 5.3.2015 18:15, 4.4.2015 12:05, 4.5.2015 3:42, 2.6.2015 16:19,
2.7.2015 2:20, 31.7.2015 10:43, 29.8.2015 18:35, 28.9.2015 2:50, 27.10.2015 12:05, 25.11.2015 22:44,
25.12.2015 11:11, 24.1.2016 1:46, 22.2.2016 18:20, 23.3.2016 12:01, 22.4.2016 5:24, 21.5.2016 21:15,
20.6.2016 11:02, 19.7.2016 22:57, 18.8.2016 9:27, 16.9.2016 19:05, 16.10.2016 4:23, 14.11.2016 13:52,
14.12.2016 0:06, 12.1.2017 11:34, 11.2.2017 0:33, 12.3.2017 14:54, 11.4.2017 6:08, 10.5.2017 21:43,
9.6.2017 13:10, 9.7.2017 4:07, 7.8.2017 18:11, 6.9.2017 7:03, 5.10.2017 18:40, 4.11.2017 5:23, 3.12.2017 15:47"""
NEW_MOONS = """10.1.2016 1:31, 8.2.2016 14:39, 9.3.2016 1:54, 7.4.2016 11:24, 6.5.2016 19:30, 5.6.2016 3:00,
4.7.2016 11:01, 2.8.2016 20:45, 1.9.2016 9:03, 1.10.2016 0:12, 30.10.2016 17:38, 29.11.2016 12:18,
29.12.2016 6:53, 28.1.2017 0:07, 26.2.2017 14:58, 28.3.2017 2:57, 26.4.2017 12:16, 25.5.2017 19:44,
24.6.2017 2:31, 23.7.2017 9:46, 21.8.2017 18:30, 20.9.2017 5:30, 19.10.2017 19:12, 18.11.2017 11:42,
18.12.2017 6:31"""
MONTHS = ("January February March April May June July August September October November December").split()
MOONS = ["Wolf", "Snow", "Worm", "Pink", "Flower", "Strawberry", "Buck", "Sturgeon", "Harvest", "Hunter's",
         "Beaver", "Cold"]
MONTH = 2551443  # seconds
START = datetime(1970, 1, 1, tzinfo=timezone.utc)


def local_time(seconds, zone):
    return (START + timedelta(seconds=seconds)).astimezone(ZoneInfo(zone))


def moment_of(local, zone, as_standard_time=False):
    zoned = local.replace(tzinfo=ZoneInfo(zone))
    seconds = (zoned.astimezone(timezone.utc) - START) // timedelta(seconds=1)
    return seconds + int(zoned.dst().total_seconds()) if as_standard_time and zoned.dst() else seconds


def signed32(value):
    value &= 0xffffffff
    return value - (1 << 32) if value >> 31 else value


def quotient(a, b):  # truncated, as are remainders
    return abs(a) // b if a >= 0 else -(abs(a) // b)


def remainder(a, b):
    return a - b * quotient(a, b)


def read_table(table, zone, now):
    universal = (START + timedelta(seconds=now)).replace(tzinfo=None)
    correction = now - moment_of(universal, zone, as_standard_time=True)
    moments = []
    for entry in table.split(","):
        day, month, year, hour, minute = map(int, re.findall(r"\d+", entry))
        moments.append(moment_of(datetime(year, month, day, hour, minute), zone) + correction)
    return moments


def step(distance):
    return signed32((remainder(signed32(distance), MONTH) + 1) * MONTH)


def neighbours(events, time):
    if time < events[0]:
        events.insert(0, events[0] - step(events[0] - time))
    previous = next((event for event in reversed(events) if event <= time), 0)
    if time > events[-1]:
        events.append(events[-1] + step(time - events[-1]))
    return previous, next((event for event in events if event > time), 0)


def phase_name(phase):
    phase = remainder(phase, 360)
    if phase < 4 or phase > 356:
        return "Full Moon"
    for middle, name in ((90, "Last Quarter"), (180, "New Moon"), (270, "First Quarter")):
        if abs(phase - middle) <= 3:
            return name
    return ("Waning Gibbous Moon", "Waning Crescent Moon", "Waxing Crescent Moon", "Waxing Gibbous Moon")[phase // 90]


def date(seconds, zone):
    time = local_time(seconds, zone)
    return "%s %02d, %02d:%02d" % (MONTHS[time.month - 1], time.day, time.hour, time.minute)


def alert(full, new, time, zone):
    for event, kind in ((full, "Full"), (new, "New")):
        for shift, night in ((-21600, "tonight"), (64800, "tomorrow")):
            if local_time(event - 21600, zone).date() == local_time(time + shift, zone).date():
                name = '\n"%s Moon"' % MOONS[local_time(full, zone).month - 1] if kind == "Full" else ""
                return "%s moon %s%s" % (kind, night, name)
    return ""


# The clock stands at the moment.
def row(zone, time):
    full = neighbours(read_table(FULL_MOONS, zone, time), time)
    new = neighbours(read_table(NEW_MOONS, zone, time), time)
    phase = quotient(remainder(signed32(time - full[0]), MONTH) * 360, MONTH)
    percent = "%d%%" % quotient((180 - min(phase, 360 - phase)) * 100, 180)

    def nearest(pair):
        return pair[1] if time - pair[0] >= pair[1] - time else pair[0]

    text = alert(nearest(full), nearest(new), time, zone)
    degrees = "Phase (degrees):%d" % phase
    if text:
        label, next_date = "%s\n\n%s\n" % (text, degrees), ""
    else:
        label = "%s\n%s\nPast full moon:%s" % (phase_name(phase), degrees, date(full[0], zone))
        next_date = date(full[1], zone)
    quoted = ['"%s"' % part.replace('"', '\\"').replace("\n", "\\n") for part in (zone, percent, label, next_date)]
    numbers = ", ".join(map(str, (time, *full, *new, phase)))
    return "    {%s, %s, %s}," % (quoted[0], numbers, ", ".join(quoted[1:]))


def check(files):
    differ = False
    for name in files:
        with open(name, encoding="ascii") as file:
            for line in file:
                zone, time = re.match(r'\s*\{"([^"]+)", (-?\d+)', line).groups()
                computed = row(zone, int(time))
                if computed != line.rstrip("\n"):
                    differ = True
                    print("-%s+%s" % (line, computed))
    return 1 if differ else 0


if __name__ == "__main__":
    if sys.argv[1] == "--check":
        sys.exit(check(sys.argv[2:]))
    for argument in sys.argv[2:]:
        print(row(sys.argv[1], int(argument)))

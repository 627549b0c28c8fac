# SPDX-License-Identifier: LGPL-2.1-or-later
"""Random rules of repetition and the days on which they fall, by python-dateutil: random_rules.py <seed> <count>

One rule per line: start, rule, then its days over ten years. Left out is what that library and the standard see
differently: positions in a first week that has begun before the start, weeks of the year without weekdays, weeks 52 and
53 (that library leaves out 1 January 2022, which is in week 52).
Exit code 77: the library is missing.
"""

import datetime
import random
import sys
import types

try:
    from dateutil import rrule as library
except ImportError:
    sys.exit(77)

DAYS = ["MO", "TU", "WE", "TH", "FR", "SA", "SU"]
YEARS = 10


def some(values, most):
    values = list(values)
    return ",".join(map(str, random.sample(values, random.randint(1, most))))


def signed(most):
    return [number for number in range(-most, most + 1) if number]


def rule(start):
    frequency = random.choice(["DAILY", "WEEKLY", "MONTHLY", "YEARLY"])
    parts = {"FREQ": frequency}
    if random.random() < 0.5:
        parts["INTERVAL"] = random.randint(2, 6)
    end = random.random()
    if end < 0.2:
        parts["COUNT"] = random.randint(1, 60)
    elif end < 0.4:
        parts["UNTIL"] = (start + datetime.timedelta(random.randint(0, 2500))).strftime("%Y%m%d")
    kind = random.random()
    if frequency == "YEARLY" and kind < 0.15:
        parts["BYWEEKNO"] = some(signed(51), 3)
        parts["BYDAY"] = some(DAYS, 3)
    elif frequency == "YEARLY" and kind < 0.3:
        parts["BYYEARDAY"] = some(signed(366), 4)
    else:
        if random.random() < 0.3:
            parts["BYMONTH"] = some(range(1, 13), 3)
        if frequency != "WEEKLY" and random.random() < 0.3:
            parts["BYMONTHDAY"] = some(signed(31), 3)
        if random.random() < 0.5:
            days = random.sample(DAYS, random.randint(1, 4))
            if frequency in ("MONTHLY", "YEARLY") and random.random() < 0.6:
                most = 5 if frequency == "MONTHLY" or "BYMONTH" in parts else 52
                days = [f"{random.choice(signed(most))}{day}" for day in days]
            parts["BYDAY"] = ",".join(days)
    if random.random() < 0.4:
        parts["WKST"] = random.choice(DAYS)
    if len(parts.keys() & {"BYMONTH", "BYMONTHDAY", "BYDAY", "BYYEARDAY", "BYWEEKNO"}) and random.random() < 0.25:
        parts["BYSETPOS"] = some([-3, -2, -1, 1, 2, 3], 2)
    return parts


def main(seed, count):
    random.seed(seed)
    for _ in range(count):
        start = datetime.datetime(2020, 1, 1) + datetime.timedelta(random.randint(0, 1500))
        parts = rule(start)
        if parts["FREQ"] == "WEEKLY" and "BYSETPOS" in parts:
            start -= datetime.timedelta((start.weekday() - DAYS.index(parts.get("WKST", "MO"))) % 7)
        text = ";".join(f"{key}={value}" for key, value in parts.items())
        # a rule that falls on no day looks for one to the library's last year
        library.datetime = types.SimpleNamespace(**{**vars(datetime), "MAXYEAR": start.year + YEARS})
        dates = library.rrulestr(text, dtstart=start)
        last = datetime.datetime(start.year + YEARS - 1, 12, 31)
        dates._until = min(dates._until or last, last)
        print(start.strftime("%Y%m%d"), text, *(date.strftime("%Y%m%d") for date in dates))


main(int(sys.argv[1]), int(sys.argv[2]))

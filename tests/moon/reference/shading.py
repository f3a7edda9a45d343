#!/usr/bin/env python3
# Computes the hashes of moonShadingTest.cpp and moonShadedPictureTest.cpp without the program's code: with 60
# digits, rounded where the program rounds; and how near the results come to where a rounding would change.
# Needs mpmath (Debian package python3-mpmath).
import math
import struct
from functools import lru_cache

from mpmath import acos, cos, mp, mpf, nint, sqrt

mp.dps = 60
DEGREES = -57.29746936176985
PSEUDO_PI = 3.0414999961853026
LIMIT = 0.999999999999
nearest_angle = 1.0  # degrees
nearest_light = math.inf  # units in the last place


def single(value):
    return struct.unpack("f", struct.pack("f", float(value)))[0]


def bits(value):
    return struct.unpack("I", struct.pack("f", value))[0]


@lru_cache(None)
def longitude(dx, dy, radius):
    global nearest_angle
    under_root = float(mpf(float(mpf(single(radius * radius)) + mpf(0.01))) - mpf(single(dy * dy)))
    cosine = single(mpf(dx) / mpf(float(sqrt(mpf(under_root)))))
    angle = acos(mpf(min(max(cosine, -LIMIT), LIMIT))) * mpf(DEGREES)
    if nint(angle) != 0:  # 0 is the end of the range: nothing changes there
        nearest_angle = min(nearest_angle, float(abs(angle - nint(angle))))
    return int(angle)


@lru_cache(None)
def factor(angle):
    global nearest_light
    radians = float(mpf(float(mpf(angle) * mpf(PSEUDO_PI))) / 180)
    light = cos(mpf(radians))
    rounded = single(light)
    if angle != 0:
        for neighbour in (bits(rounded) - 1, bits(rounded) + 1):
            middle = (mpf(rounded) + mpf(struct.unpack("f", struct.pack("I", neighbour))[0])) / 2
            nearest_light = min(nearest_light, float(abs(light - middle)) / math.ulp(float(light)))
    if rounded < 0:
        return 0.0
    return single(sqrt(mpf(single(sqrt(mpf(rounded))))))


def illumination(x, y, size, phase):
    radius = size // 2
    dx, dy = x - radius, y - radius
    if radius * radius < dx * dx + dy * dy:
        return 0.0
    return factor(-90 - longitude(dx, dy, radius) - (phase if phase <= 180 else phase - 360))


def fnv(values):
    result = 14695981039346656037
    for value in values:
        result = (result ^ value) * 1099511628211 & (2**64 - 1)
    return result


def hash_of_factors(size, first, step):
    return fnv(bits(illumination(x, y, size, phase)) for phase in range(first, 360, step) for y in range(size)
               for x in range(size))


def hash_of_picture(size, phase):
    picture = [[((x * 7 + y * 3) % 256, (x * 5 + y * 11) % 256, (x + y * 13) % 256) for x in range(size)]
               for y in range(size)]
    darkest_blue = single(0.3)

    def darken(x, y, light):
        if y < size:
            factors = (light, light, max(light, darkest_blue))
            picture[y][x] = tuple(int(single(mpf(c) * mpf(f))) for c, f in zip(picture[y][x], factors))

    for x in range(size):
        for y in range(size // 2 + 1):
            light = illumination(x, y, size, phase)
            darken(x, y, light)
            if size > 2 * y:
                darken(x, size - y, light)
    return fnv((red << 24) | (green << 16) | (blue << 8) | 255 for line in picture for red, green, blue in line)


for arguments in ((50, 0, 1), (100, 0, 7), (200, -359, 60), (300, 3, 45)):
    print("hashOf%s = %d" % (arguments, hash_of_factors(*arguments)))
for arguments in ((50, 0), (100, 40), (100, 180), (200, 271), (300, 90), (300, 341), (300, -77)):
    print("hashOfShaded%s = %d" % (arguments, hash_of_picture(*arguments)))
for every_angle in range(-720, 721):
    factor(every_angle)
print("acos: %.2g degrees to the nearest truncation" % nearest_angle)
print("cos: %.2g units in the last place to the nearest rounding" % nearest_light)

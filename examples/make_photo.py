#!/usr/bin/env python3
"""Paints examples/photo.png, the sample picture of the demo: a lake below mountains, 640 x 480, RGB.

Everything in it is computed here and nothing is random from run to run, so that the picture is ours to ship. It has
what the eye needs to judge the demo: a left and a right that differ, an up and a down that differ, strong primary
colours (the ball), smooth gradients (the sky), fine texture (rock, water, planks) and a little sensor noise.

    python3 make_photo.py [photo.png]        about half a minute, standard library alone

World axes: x to the right, y up, z into the picture; the water is the plane y = 0 and the camera looks along +z.
All colours are linear light until develop() turns them into bytes.
"""

import math
import random
import struct
import sys
import zlib

WIDTH, HEIGHT = 640, 480
OVERSAMPLE = 2                      # each final pixel is the mean of OVERSAMPLE x OVERSAMPLE painted ones
W, H = WIDTH * OVERSAMPLE, HEIGHT * OVERSAMPLE
FOCAL = 0.90 * W                    # in painted pixels
HORIZON = int(0.545 * H)
EYE = 6.0                           # height of the camera above the water

SUN = (-0.74, 0.47, -0.48)          # towards the sun: from the left, behind the viewer
SUNLIGHT = (2.55, 2.20, 1.72)
SKYLIGHT = (0.30, 0.40, 0.58)
HAZE = (0.44, 0.60, 0.84)
HAZE_LENGTH = 3000.0                # distance after which all but 1/e of a colour is haze


# ---------------------------------------------------------------------------------------------------- small helpers


def mix(a, b, t):
    return (a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t, a[2] + (b[2] - a[2]) * t)


def scaled(a, k):
    return (a[0] * k, a[1] * k, a[2] * k)


def times(a, b):
    return (a[0] * b[0], a[1] * b[1], a[2] * b[2])


def dot(a, b):
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


def clamp01(x):
    return 0.0 if x < 0.0 else 1.0 if x > 1.0 else x


def smooth(lo, hi, x):
    t = clamp01((x - lo) / (hi - lo))
    return t * t * (3.0 - 2.0 * t)


def unit(a):
    return scaled(a, 1.0 / math.sqrt(dot(a, a)))


SUN = unit(SUN)


def lit(albedo, sun, sky=1.0):
    """Light that a matt surface sends back: `sun` and `sky` say how much of either reaches it."""
    return (albedo[0] * (SUNLIGHT[0] * sun + SKYLIGHT[0] * sky),
            albedo[1] * (SUNLIGHT[1] * sun + SKYLIGHT[1] * sky),
            albedo[2] * (SUNLIGHT[2] * sun + SKYLIGHT[2] * sky))


# ------------------------------------------------------------------------------------------------------------ noise

LATTICE = 256
_dice = random.Random(7)
_values = [_dice.random() for _ in range(LATTICE * LATTICE)]


def noise(x, y):
    """Value noise in 0..1 with period LATTICE: random corners, smooth in between."""
    fx, fy = math.floor(x), math.floor(y)
    u, v = x - fx, y - fy
    u, v = u * u * (3.0 - 2.0 * u), v * v * (3.0 - 2.0 * v)
    x0, y0 = fx & 255, (fy & 255) << 8
    x1, y1 = (fx + 1) & 255, ((fy + 1) & 255) << 8
    top = _values[y0 + x0] + (_values[y0 + x1] - _values[y0 + x0]) * u
    low = _values[y1 + x0] + (_values[y1 + x1] - _values[y1 + x0]) * u
    return top + (low - top) * v


def fbm(x, y, octaves, gain=0.5):
    """Octaves of noise, each turned against the last so that the lattice does not show."""
    total, amplitude, weight = 0.0, 1.0, 0.0
    for _ in range(octaves):
        total += amplitude * noise(x, y)
        weight += amplitude
        amplitude *= gain
        x, y = 1.6 * x + 1.2 * y + 17.3, 1.6 * y - 1.2 * x + 5.9
    return total / weight


def ridges(x, y, octaves):
    """Noise folded at its middle, which makes crests; low ground carries less of the finer octaves."""
    total, amplitude, carried = 0.0, 0.5, 1.0
    for _ in range(octaves):
        crest = 1.0 - math.sqrt((2.0 * noise(x, y) - 1.0) ** 2 + 0.004)
        crest *= crest * carried
        total += amplitude * crest
        carried = clamp01(1.6 * crest)
        amplitude *= 0.5
        x, y = 1.6 * x + 1.2 * y + 3.1, 1.6 * y - 1.2 * x + 11.7
    return total


# -------------------------------------------------------------------------------------------------------------- sky


def sky_colour(column, row):
    """Sky seen through a painted pixel above the horizon: gradient, brighter to the left, clouds on a plane."""
    x, y = (column - W / 2) / FOCAL, (HORIZON - row) / FOCAL
    up = clamp01(y / 0.62)
    base = mix((0.66, 0.76, 0.86), (0.10, 0.25, 0.62), up ** 0.55)
    base = mix(base, (1.05, 0.90, 0.70), 0.42 * math.exp(-5.0 * up) * smooth(0.5, -0.6, x))
    px, py = 1.55 * x / (y + 0.16), 1.9 / (y + 0.16)
    density = fbm(px + 40.0, py + 3.0, 6)
    cover = smooth(0.43, 0.66, density)
    if cover <= 0.0:
        return base
    towards_sun = fbm(px + 39.82, py + 2.88, 4)
    light = clamp01(0.62 + 3.0 * (density - towards_sun))
    cloud = mix((0.46, 0.52, 0.63), (1.22, 1.14, 1.04), light)
    return mix(base, cloud, cover * (0.35 + 0.6 * smooth(0.02, 0.2, y)))


def paint_sky():
    """Rows 0..HORIZON of the sky; one computed colour serves OVERSAMPLE painted pixels, for it is smooth."""
    rows = []
    for row in range(0, HORIZON + OVERSAMPLE, OVERSAMPLE):
        line = []
        for column in range(0, W, OVERSAMPLE):
            line += [sky_colour(column, row)] * OVERSAMPLE
        rows += [line] * OVERSAMPLE
    return rows[:HORIZON + 1]


# ---------------------------------------------------------------------------------------------------------- terrain


class Terrain:
    """A grid of heights and finished colours over a rectangle of the ground, drawn front to back."""

    def __init__(self, left, near, cell, columns, rows, height, albedo):
        self.left, self.near, self.cell = left, near, cell
        self.columns, self.rows = columns, rows
        self.height = [[height(left + i * cell, near + j * cell) for i in range(columns)] for j in range(rows)]
        self.shade(albedo)

    def shade(self, albedo):
        shadow = self.shadow_heights()
        self.colour = []
        for j in range(self.rows):
            here, back = self.height[j], self.height[min(j + 1, self.rows - 1)]
            line = []
            for i in range(self.columns):
                h = here[i]
                slope_x = (here[min(i + 1, self.columns - 1)] - h) / self.cell
                slope_z = (back[i] - h) / self.cell
                normal = unit((-slope_x, 1.0, -slope_z))
                open_sky = 1.0 - smooth(0.0, 2.5 * self.cell, shadow[j][i] - h)
                surface = albedo(self.left + i * self.cell, self.near + j * self.cell, h, normal[1])
                line.append(lit(surface, max(0.0, dot(normal, SUN)) * open_sky, 0.45 + 0.55 * normal[1]))
            self.colour.append(line)

    def shadow_heights(self):
        """Height up to which each cell is shaded, carried away from the sun cell by cell and sinking with its rays."""
        shift, sink = SUN[2] / -SUN[0], self.cell * SUN[1] / -SUN[0]
        shadow = [[-1e9] * self.columns for _ in range(self.rows)]
        for i in range(1, self.columns):
            for j in range(self.rows):
                source = min(max(j + shift, 0.0), self.rows - 1.001)
                k, t = int(source), source - int(source)
                a = max(shadow[k][i - 1], self.height[k][i - 1])
                b = max(shadow[k + 1][i - 1], self.height[k + 1][i - 1])
                shadow[j][i] = a + (b - a) * t - sink
        return shadow

    def draw(self, picture, eye):
        """Walks each picture column from near to far and fills upwards whatever rises above what is drawn."""
        far = self.near + (self.rows - 1) * self.cell
        for column in range(W):
            slope = (column + 0.5 - W / 2) / FOCAL
            lowest, z = H, self.near
            while z < far:
                fx, fz = (slope * z - self.left) / self.cell, (z - self.near) / self.cell
                i, j = int(fx), int(fz)
                if fx >= 0.0 and i < self.columns - 1:
                    lowest = self.fill(picture, column, lowest, z, eye, i, j, fx - i, fz - j)
                z += max(self.cell * 0.4, z * 0.0016)

    def fill(self, picture, column, lowest, z, eye, i, j, u, v):
        near, back = self.height[j], self.height[j + 1]
        low, high = near[i] + (near[i + 1] - near[i]) * u, back[i] + (back[i + 1] - back[i]) * u
        h = low + (high - low) * v
        if h <= 0.0:
            return lowest
        top = max(0, int(HORIZON - (h - eye) / z * FOCAL))
        bottom = min(lowest, int(HORIZON + eye / z * FOCAL) + 1, H)
        if top < bottom:
            colour = mix(mix(self.colour[j][i], self.colour[j][i + 1], u),
                         mix(self.colour[j + 1][i], self.colour[j + 1][i + 1], u), v)
            haze = 1.0 - math.exp(-z / HAZE_LENGTH)
            for row in range(top, bottom):
                picture[row][column] = mix(scaled(colour, self.grain(column, row, z, eye)), HAZE, haze)
        return min(lowest, top)

    def grain(self, column, row, z, eye):
        """Unevenness finer than a cell, tied to the place in space so that a reflection shows the same."""
        x, y = (column - W / 2) / FOCAL * z / self.cell, ((HORIZON - row) / FOCAL * z + eye) / self.cell
        return 0.62 + 0.46 * noise(0.9 * x + 0.4 * y, 1.3 * y + z / self.cell) + 0.30 * noise(2.3 * x, 2.9 * y)


def mountain_height(x, z):
    rise = smooth(330.0, 760.0, z + 60.0 * noise(x / 70.0, 3.3))
    peaks = ridges(x / 330.0 + 5.35, z / 330.0 + 1.1, 8)
    sides = 0.62 + 0.38 * smooth(60.0, 330.0, abs(x + 40.0))
    foothill = 26.0 * smooth(300.0, 420.0, z) * fbm(x / 90.0, z / 90.0, 4)
    return 395.0 * rise * peaks * sides + foothill - 5.0 * (1.0 - smooth(285.0, 325.0, z + 16.0 * noise(x / 30.0, 0.7)))


def mountain_albedo(x, z, h, flatness):
    grain = fbm(x / 7.0, z / 7.0, 3)
    rock = mix((0.20, 0.18, 0.17), (0.40, 0.36, 0.32), grain)
    forest = mix((0.030, 0.060, 0.030), (0.085, 0.125, 0.045), grain)
    meadow = mix((0.16, 0.21, 0.06), (0.28, 0.29, 0.10), grain)
    ground = mix(forest, meadow, smooth(0.52, 0.62, fbm(x / 45.0, z / 45.0, 3)) * smooth(0.72, 0.86, flatness))
    ground = mix(ground, rock, smooth(52.0, 92.0, h + 45.0 * (grain - 0.5) + 60.0 * (0.8 - flatness)))
    snow = smooth(118.0, 150.0, h + 60.0 * (grain - 0.5)) * smooth(0.42, 0.62, flatness)
    return mix(ground, (0.86, 0.88, 0.92), snow)


CABIN = (41.0, 92.0)                # where the cabin stands, x and z


def headland_height(x, z):
    """The tongue of land on the right that carries the cabin."""
    edge = 30.0 + 7.0 * noise(x / 9.0, 1.5) - 0.26 * (x - 20.0)
    across = 1.0 - abs(z - 96.0) / edge
    along = smooth(17.0, 34.0, x + 4.0 * noise(z / 7.0, 9.0))
    h = 5.2 * smooth(0.0, 0.9, across) * along + 0.35 * fbm(x / 1.6, z / 1.6, 3) - 0.45
    level = smooth(15.0, 6.0, math.hypot(x - CABIN[0] - 2.0, z - CABIN[1] - 3.0))
    return h + (2.6 - h) * level if h > 0.0 else h


def headland_albedo(x, z, h, flatness):
    blades = 0.45 * noise(x * 3.1, z * 3.1) + 0.55 * fbm(x / 3.0, z / 3.0, 3)
    grass = mix((0.07, 0.13, 0.03), (0.30, 0.33, 0.09), blades)
    stones = mix((0.16, 0.15, 0.13), (0.48, 0.45, 0.40), noise(x * 1.7, z * 1.7))
    return mix(stones, grass, smooth(0.15, 0.75, h + 0.5 * (blades - 0.5)))


# ------------------------------------------------------------------------------------------------------------ trees


def project(x, y, z, eye):
    return W / 2 + x / z * FOCAL, HORIZON - (y - eye) / z * FOCAL


def draw_conifer(picture, tree, eye):
    """A fir as a flat shape: tiers of branches with a ragged outline, bright towards the sun."""
    x, ground, z, size, seed = tree
    column, foot = project(x, ground, z, eye)
    tall = size / z * FOCAL
    haze = 1.0 - math.exp(-z / HAZE_LENGTH)
    for row in range(max(0, int(foot - tall)), min(H, int(foot) + 1)):
        down = (row - (foot - tall)) / tall
        tier = (down * 7.0 + seed) % 1.0
        half = tall * (0.02 + 0.20 * down * (0.55 + 0.45 * tier)) if down < 0.92 else tall * 0.025
        for c in range(max(0, int(column - half)), min(W, int(column + half) + 1)):
            side = (c - column) / half if half > 0.5 else 0.0
            ragged = noise(seed * 31.0 + c * 0.55, row * 0.55 * (1 if eye > 0 else -1))
            if abs(side) > 0.55 + 0.6 * ragged:
                continue
            sun = clamp01(0.30 - 0.42 * side + 0.30 * (ragged - 0.5)) * (0.55 + 0.45 * tier)
            leaf = (0.050, 0.085, 0.040) if down < 0.92 else (0.10, 0.07, 0.05)
            picture[row][c] = mix(lit(leaf, sun, 0.6 + 0.4 * ragged), HAZE, haze)


def plant_trees():
    """Far shore first, then the headland, so that nearer trees are drawn over farther ones."""
    dice = random.Random(11)
    trees = []
    for _ in range(620):
        x, z = dice.uniform(-300.0, 260.0), dice.uniform(300.0, 352.0)
        ground = mountain_height(x, z)
        if ground > 0.2 and fbm(x / 40.0 + 9.0, z / 40.0, 2) > 0.43:
            trees.append((x, ground, z, dice.uniform(6.0, 13.0), dice.random()))
    for x, z, size in ((66, 112, 17), (60, 109, 21), (53.5, 108, 18), (69, 103, 23), (31, 104, 12), (26.5, 101, 8.5),
                       (62.5, 97, 15), (57.0, 88, 9.5)):
        trees.append((x, max(headland_height(x, z), 0.2), z, size, dice.random()))
    return sorted(trees, key=lambda tree: -tree[2])


# -------------------------------------------------------------------------------------------------- cabin, pier, ball


def draw_panel(picture, eye, corner, along, up, paint):
    """A flat rectangle in space; paint(u, v) in metres along its edges gives a colour, or None where it is cut away."""
    long, tall = math.sqrt(dot(along, along)), math.sqrt(dot(up, up))
    a, b = scaled(along, 1.0 / long), scaled(up, 1.0 / tall)
    normal = (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])
    origin = (corner[0], corner[1] - eye, corner[2])
    spots = [project(corner[0] + s * along[0] + t * up[0], corner[1] + s * along[1] + t * up[1],
                     corner[2] + s * along[2] + t * up[2], eye) for s in (0, 1) for t in (0, 1)]
    columns, rows = [s[0] for s in spots], [s[1] for s in spots]
    for row in range(max(0, int(min(rows))), min(H, int(max(rows)) + 2)):
        for column in range(max(0, int(min(columns))), min(W, int(max(columns)) + 2)):
            ray = ((column + 0.5 - W / 2) / FOCAL, (HORIZON - row - 0.5) / FOCAL, 1.0)
            facing = dot(normal, ray)
            if abs(facing) < 1e-9:
                continue
            t = dot(normal, origin) / facing
            hit = (ray[0] * t - origin[0], ray[1] * t - origin[1], ray[2] * t - origin[2])
            u, v = dot(hit, a), dot(hit, b)
            if t > 0.0 and 0.0 <= u < long and 0.0 <= v < tall:
                colour = paint(u, v)
                if colour is not None:
                    picture[row][column] = colour


WALL_LONG, WALL_SHORT, WALL_HIGH, ROOF_HIGH = 13.0, 8.5, 4.6, 4.2


def planks(u, v, colour, sun):
    seam = (v / 0.46) % 1.0
    worn = 0.75 + 0.5 * noise(u * 0.9 + 37.0 * math.floor(v / 0.46), v * 6.0)
    return scaled(lit(colour, sun), worn * (0.45 if seam < 0.14 else 1.0))


def window(u, v, left, low, wide, high):
    """Colour of a window with a white frame and a cross bar, or None beside it."""
    x, y = (u - left) / wide, (v - low) / high
    if not (0.0 <= x <= 1.0 and 0.0 <= y <= 1.0):
        return None
    if min(x, 1.0 - x) * wide < 0.22 or min(y, 1.0 - y) * high < 0.22 or abs(x - 0.5) * wide < 0.10:
        return lit((0.80, 0.79, 0.74), 0.55)
    return mix((0.95, 0.62, 0.22), (0.16, 0.22, 0.30), smooth(0.1, 1.0, x * 0.5 + y * 0.6))


def front_wall(u, v):
    for left in (1.3, 8.6):
        glass = window(u, v, left, 1.4, 2.8, 2.2)
        if glass:
            return glass
    if 5.4 < u < 7.3 and v < 3.4:
        return scaled(lit((0.10, 0.22, 0.30), 0.5), 0.8 if (u * 2.1) % 1.0 < 0.12 else 1.0)
    return planks(u, v, (0.52, 0.15, 0.09), 0.46)


def gable_wall(u, v):
    if v > WALL_HIGH + ROOF_HIGH * (1.0 - abs(u - WALL_SHORT / 2) / (WALL_SHORT / 2)):
        return None
    glass = window(u, v, 3.0, 1.8, 2.5, 2.1) or window(u, v, 3.4, 5.4, 1.7, 1.5)
    return glass or planks(u, v, (0.55, 0.17, 0.10), 0.86)


def shingles(u, v):
    row = math.floor(v / 0.55)
    tone = 0.7 + 0.6 * noise(math.floor(u / 0.6 + 0.5 * (row & 1)) * 1.7, row * 3.3)
    return scaled(lit((0.17, 0.17, 0.19), 0.72), tone * (0.6 if (v / 0.55) % 1.0 < 0.2 else 1.0))


def bricks(u, v):
    joint = (v / 0.3) % 1.0 < 0.2
    return lit((0.42, 0.40, 0.37) if joint else (0.40, 0.16, 0.10), 0.62)


def draw_cabin(picture, eye):
    """A gable to the left in full sun, the long wall to the viewer, the front half of the roof, a chimney."""
    x, z = CABIN
    base, turn = 2.3, 0.25
    along = (math.cos(turn) * WALL_LONG, 0.0, math.sin(turn) * WALL_LONG)
    deep = (-math.sin(turn) * WALL_SHORT, 0.0, math.cos(turn) * WALL_SHORT)
    near_left = (x - 4.0, base, z)
    far_left = (near_left[0] + deep[0], base, near_left[2] + deep[2])
    draw_panel(picture, eye, (x + 3.6, base + 6.0, z + 3.0), (1.5, 0.0, 0.0), (0.0, 4.6, 0.0), bricks)
    draw_panel(picture, eye, far_left, (-deep[0], 0.0, -deep[2]), (0.0, WALL_HIGH + ROOF_HIGH, 0.0), gable_wall)
    draw_panel(picture, eye, near_left, along, (0.0, WALL_HIGH, 0.0), front_wall)
    eaves = (near_left[0] - 0.06 * along[0] - 0.07 * deep[0], base + WALL_HIGH - 0.55,
             near_left[2] - 0.06 * along[2] - 0.07 * deep[2])
    draw_panel(picture, eye, eaves, scaled(along, 1.12),
               (deep[0] * 0.57, ROOF_HIGH + 0.65, deep[2] * 0.57), shingles)


PIER_TOP = 1.35
BALL, BALL_RADIUS = (-4.55, PIER_TOP + 1.55, 15.6), 1.55


def ball_shadow(x, y, z):
    """1 in the open, less where the ball stands between the point and the sun; the penumbra is soft."""
    to = (BALL[0] - x, BALL[1] - y, BALL[2] - z)
    ahead = dot(to, SUN)
    miss = math.sqrt(max(0.0, dot(to, to) - ahead * ahead))
    return smooth(BALL_RADIUS - 0.12, BALL_RADIUS + 0.16, miss) if ahead > 0.0 else 1.0


def draw_pier(picture, eye):
    left, near, wide, long = -8.6, 7.0, 6.4, 15.0

    def deck(u, v):
        board = math.floor(v / 0.62)
        gap = (v / 0.62) % 1.0
        grain = noise(u * 1.3 + 19.0 * board, v * 14.0) * 0.5 + noise(u * 0.4 + 7.0 * board, board * 2.7) * 0.5
        wood = mix((0.20, 0.15, 0.11), (0.52, 0.43, 0.33), grain)
        x, z = left + u, near + v
        near_ball = math.hypot(x - BALL[0], z - BALL[2])
        contact = 0.35 + 0.65 * smooth(0.2, 1.9, near_ball)
        colour = lit(wood, 0.62 * ball_shadow(x, PIER_TOP, z), contact)
        nail = min(abs(u - 0.5), abs(u - wide + 0.5)) < 0.06 and abs(gap - 0.5) < 0.12
        return scaled(colour, 0.22 if gap < 0.07 else 0.4 if nail else 1.0)

    def side(u, v):
        return planks(u, v + 0.1, (0.16, 0.12, 0.09), 0.06)

    def post(u, v):
        return scaled(lit((0.24, 0.18, 0.13), 0.75 * math.sin(2.4 - 2.2 * u / 0.6) ** 2),
                      0.7 + 0.5 * noise(u * 9.0, v * 2.0))

    for z in (near + long - 0.3, near + 0.5 * long):
        draw_panel(picture, eye, (left + wide - 0.1, -1.0, z), (0.6, 0.0, 0.0), (0.0, PIER_TOP + 2.2, 0.0), post)
    draw_panel(picture, eye, (left + wide, PIER_TOP - 0.55, near), (0.0, 0.0, long), (0.0, 0.55, 0.0), side)
    draw_panel(picture, eye, (left, PIER_TOP, near), (wide, 0.0, 0.0), (0.0, 0.0, long), deck)


GORES = ((0.82, 0.04, 0.03), (0.90, 0.88, 0.82), (0.03, 0.12, 0.62), (0.92, 0.60, 0.02), (0.90, 0.88, 0.82),
         (0.02, 0.40, 0.10))


def ball_albedo(normal):
    """Six coloured gores around a tilted axis and a white cap where they meet."""
    axis = unit((0.42, 0.74, -0.52))
    side = unit((0.74, -0.42, 0.0))
    front = (axis[1] * side[2] - axis[2] * side[1], axis[2] * side[0] - axis[0] * side[2],
             axis[0] * side[1] - axis[1] * side[0])
    if abs(dot(normal, axis)) > 0.955:
        return (0.92, 0.90, 0.86)
    turn = math.atan2(dot(normal, front), dot(normal, side)) / (2.0 * math.pi) + 0.5
    return GORES[int(turn * 6.0) % 6]


def shade_ball(normal, ray):
    sun = max(0.0, dot(normal, SUN))
    bounce = 0.55 + 0.45 * normal[1]
    colour = lit(ball_albedo(normal), sun, bounce)
    colour = mix(colour, times(ball_albedo(normal), (0.55, 0.46, 0.36)), 0.35 * max(0.0, -normal[1]))
    mirror = tuple(ray[k] - 2.0 * dot(ray, normal) * normal[k] for k in range(3))
    gloss = max(0.0, dot(unit(mirror), SUN))
    grazing = (1.0 - abs(dot(unit(ray), normal))) ** 4
    colour = mix(colour, HAZE if mirror[1] > 0 else (0.2, 0.17, 0.13), 0.05 + 0.45 * grazing)
    return tuple(colour[k] + SUNLIGHT[k] * (1.6 * gloss ** 140 + 0.10 * gloss ** 12) for k in range(3))


def draw_ball(picture, eye):
    centre = (BALL[0], BALL[1] - eye, BALL[2])
    column, row = project(*BALL, eye)
    reach = int(1.15 * BALL_RADIUS / BALL[2] * FOCAL) + 2
    for r in range(max(0, int(row) - reach), min(H, int(row) + reach)):
        for c in range(max(0, int(column) - reach), min(W, int(column) + reach)):
            ray = ((c + 0.5 - W / 2) / FOCAL, (HORIZON - r - 0.5) / FOCAL, 1.0)
            a, b = dot(ray, ray), dot(ray, centre)
            inside = b * b - a * (dot(centre, centre) - BALL_RADIUS ** 2)
            if inside > 0.0:
                t = (b - math.sqrt(inside)) / a
                normal = tuple((ray[k] * t - centre[k]) / BALL_RADIUS for k in range(3))
                picture[r][c] = shade_ball(normal, ray)


# ------------------------------------------------------------------------------------------------------------ water


def paint_water(picture, reflection):
    """Each water pixel looks into the picture that an eye below the surface sees, pushed about by the waves."""
    for row in range(HORIZON + 1, H):
        steep = (row - HORIZON) / FOCAL
        z = EYE / steep
        mirrored = 2 * HORIZON - row
        ripple = OVERSAMPLE * (1.0 + 17.0 * smooth(0.0, 0.42, steep))
        fresnel = 0.10 + 0.82 * math.exp(-5.2 * steep)
        line, breeze_row = picture[row], z / 60.0
        for column in range(W):
            x = (column - W / 2) / FOCAL * z
            breeze = 0.25 + 0.75 * smooth(0.42, 0.62, noise(x / 70.0 + 4.0, breeze_row))
            wave = fbm(x / 1.5 + 50.0, z / 0.75, 3, 0.6) - 0.5
            swell = noise(x / 6.0, z / 2.2) - 0.5
            look = mirrored - (1.5 * wave + swell) * ripple * breeze * 1.4
            sideways = column + 0.35 * wave * ripple
            image = reflection[min(max(int(look), 0), HORIZON)][min(max(int(sideways), 0), W - 1)]
            share = clamp01(fresnel + 0.55 * wave * breeze)
            deep = mix((0.012, 0.060, 0.072), (0.04, 0.13, 0.13), clamp01(0.5 + wave + swell))
            line[column] = mix(deep, image, share)


# ---------------------------------------------------------------------------------------------------------- assembly


def paint_world(sky, grounds, trees, eye):
    """Sky and land as an eye at that height sees them; rows below the horizon stay open for the water."""
    mountains, headland = grounds
    picture = [list(line) for line in sky] + [[(0.0, 0.0, 0.0)] * W for _ in range(H - len(sky))]
    mountains.draw(picture, eye)
    far = [tree for tree in trees if tree[2] > 200.0]
    for tree in far:
        draw_conifer(picture, tree, eye)
    headland.draw(picture, eye)
    for tree in trees[len(far):]:
        if tree[2] > CABIN[1] + 4.0:
            draw_conifer(picture, tree, eye)
    draw_cabin(picture, eye)
    for tree in trees[len(far):]:
        if tree[2] <= CABIN[1] + 4.0:
            draw_conifer(picture, tree, eye)
    return picture


def paint():
    sky = paint_sky()
    grounds = (Terrain(-720.0, 280.0, 1.6, 900, 580, mountain_height, mountain_albedo),
               Terrain(10.0, 58.0, 0.4, 240, 190, headland_height, headland_albedo))
    trees = plant_trees()
    reflection = paint_world(sky, grounds, trees, -EYE)
    water = [[None] * W for _ in range(H)]
    paint_water(water, reflection)
    land = paint_world(sky, grounds, trees, EYE)
    picture = [land[row] if row <= HORIZON else
               [w if p == (0.0, 0.0, 0.0) else p for p, w in zip(land[row], water[row])] for row in range(H)]
    draw_pier(picture, EYE)
    draw_ball(picture, EYE)
    return picture


def develop(picture):
    """Mean of the painted pixels, lens falloff, film curve, sensor noise, sRGB bytes."""
    dice = random.Random(3)
    cells = [(dy, dx) for dy in range(OVERSAMPLE) for dx in range(OVERSAMPLE)]
    rows = []
    for y in range(HEIGHT):
        line = bytearray()
        for x in range(WIDTH):
            falloff = 1.0 - 0.30 * (((x - WIDTH / 2) / WIDTH) ** 2 + ((y - HEIGHT / 2) / WIDTH) ** 2) * 2.0
            spots = [picture[y * OVERSAMPLE + dy][x * OVERSAMPLE + dx] for dy, dx in cells]
            light = tuple(falloff * sum(spot[c] for spot in spots) / len(spots) for c in range(3))
            gray = 0.25 * light[0] + 0.65 * light[1] + 0.10 * light[2]
            vivid = tuple(max(0.0, gray + 1.22 * (v - gray)) for v in light)
            grain = dice.gauss(0.0, 1.1)
            for c in range(3):
                line.append(exposed(vivid[c], grain + dice.gauss(0.0, 0.5)))
        rows.append(bytes(line))
    return rows


def exposed(light, grain):
    """A film curve: straight in the shadows, bending towards white, with a little more contrast in the middle."""
    toned = light * (1.0 + light / 6.0) / (1.0 + 0.75 * light)
    coded = min(1.0, 12.92 * toned if toned < 0.0031308 else 1.055 * toned ** (1.0 / 2.4) - 0.055)
    coded += 0.55 * (coded * coded * (3.0 - 2.0 * coded) - coded)
    return min(255, max(0, int(255.0 * coded + grain + 0.5)))


# -------------------------------------------------------------------------------------------------------------- PNG


def filtered(row, above):
    """The row under the PNG filter (none, sub, up, average, Paeth) whose residue is smallest."""
    left, upper_left = bytes(3) + row[:-3], bytes(3) + above[:-3]
    guesses = (bytes(len(row)), left, above, bytes((a + b) >> 1 for a, b in zip(left, above)),
               bytes(paeth(a, b, c) for a, b, c in zip(left, above, upper_left)))
    residues = [bytes((v - g) & 255 for v, g in zip(row, guess)) for guess in guesses]
    best = min(range(5), key=lambda k: sum(min(v, 256 - v) for v in residues[k]))
    return bytes([best]) + residues[best]


def paeth(a, b, c):
    pa, pb, pc = abs(b - c), abs(a - c), abs(a + b - 2 * c)
    return a if pa <= pb and pa <= pc else b if pb <= pc else c


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(rows):
    header = struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 2, 0, 0, 0)
    above = [bytes(3 * WIDTH)] + rows[:-1]
    data = zlib.compress(b"".join(filtered(row, up) for row, up in zip(rows, above)), 9)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", data) + chunk(b"IEND", b"")


if __name__ == "__main__":
    target = sys.argv[1] if len(sys.argv) > 1 else "photo.png"
    with open(target, "wb") as file:
        file.write(png(develop(paint())))

#pragma once

/// A place in a grid of three by three, numbered in reading order.
enum Direction : int {
    TopLeft,
    TopMiddle,
    TopRight,
    MiddleLeft,
    Middle,
    MiddleRight,
    BottomLeft,
    BottomMiddle,
    BottomRight
};

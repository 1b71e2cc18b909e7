#pragma once

#include <string_view>

namespace quorvel {

// Seven layouts: the six that are offered at first, and one more.
inline constexpr std::string_view sevenLayouts = R"({"layouts": [
    {"id": "one_full_screen", "name": "Full", "windows": [
        {"bottom_left_x": 0, "bottom_left_y": 0, "top_right_x": 1, "top_right_y": 1}]},
    {"id": "centered", "name": "Centered", "windows": [
        {"bottom_left_x": 0.125, "bottom_left_y": 0.1, "top_right_x": 0.875, "top_right_y": 0.9}]},
    {"id": "two_side_by_side", "name": "Side", "windows": [
        {"bottom_left_x": 0, "bottom_left_y": 0, "top_right_x": 0.5, "top_right_y": 1},
        {"bottom_left_x": 0.5, "bottom_left_y": 0, "top_right_x": 1, "top_right_y": 1}]},
    {"id": "two_stacked", "name": "Stacked", "windows": [
        {"bottom_left_x": 0, "bottom_left_y": 0.5, "top_right_x": 1, "top_right_y": 1},
        {"bottom_left_x": 0, "bottom_left_y": 0, "top_right_x": 1, "top_right_y": 0.5}]},
    {"id": "three_side_by_side", "name": "Three", "windows": [
        {"bottom_left_x": 0, "bottom_left_y": 0, "top_right_x": 0.3333333333333333, "top_right_y": 1},
        {"bottom_left_x": 0.3333333333333333, "bottom_left_y": 0, "top_right_x": 0.6666666666666666, "top_right_y": 1},
        {"bottom_left_x": 0.6666666666666666, "bottom_left_y": 0, "top_right_x": 1, "top_right_y": 1}]},
    {"id": "four_tiled", "name": "Four", "windows": [
        {"bottom_left_x": 0, "bottom_left_y": 0.5, "top_right_x": 0.5, "top_right_y": 1},
        {"bottom_left_x": 0.5, "bottom_left_y": 0.5, "top_right_x": 1, "top_right_y": 1},
        {"bottom_left_x": 0, "bottom_left_y": 0, "top_right_x": 0.5, "top_right_y": 0.5},
        {"bottom_left_x": 0.5, "bottom_left_y": 0, "top_right_x": 1, "top_right_y": 0.5}]},
    {"id": "extra", "name": "Extra", "windows": [
        {"bottom_left_x": 0, "bottom_left_y": 0, "top_right_x": 0.3, "top_right_y": 1}]}
]})";

} // namespace quorvel

#pragma once

#include <cstdint>

/// What an item gives; the values stand in saved runs.
enum ItemType : std::int32_t {
    ItemTypeFirstAid = 0,
    ItemTypeBomb = 1,
    ItemTypeInvincibility = 2,
    ItemTypeDualWeapon = 3,
};

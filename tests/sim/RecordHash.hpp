#pragma once

#include "state/GameState.hpp"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string_view>
#include <type_traits>

// A checksum of the whole run: every field of the record and every entry of its lists, floats by their bits,
// and the generator by what it will draw, for each standard library writes its state in an order of its own.
// FNV-1a, 64 bits.

class RecordHash {
public:
    template <typename Value> void Add(const Value &Field) {
        if constexpr (std::is_same_v<Value, float>) {
            AddNumber(std::bit_cast<std::uint32_t>(Field));
        } else {
            AddNumber(static_cast<std::uint64_t>(Field));
        }
    }

    void Add(const Color &Field) {
        AddAll(Field.R, Field.G, Field.B, Field.A);
    }

    void Add(const Player &Field) {
        AddAll(Field.X, Field.Y, Field.Radius, Field.Hp, Field.MaxHp, Field.Stocks, Field.FireCooldown);
    }

    void Add(const Bullet &Field) {
        AddAll(Field.X, Field.Y, Field.Speed, Field.Radius);
    }

    void Add(const EnemyBullet &Field) {
        AddAll(Field.X, Field.Y, Field.Speed, Field.Radius, Field.Damage);
    }

    void Add(const Enemy &Field) {
        AddAll(Field.X, Field.Y, Field.Speed, Field.Radius, Field.HitFlash, Field.AiTimer, Field.FireCooldown,
            Field.Lane, Field.Hp, Field.Score, Field.Color);
    }

    void Add(const Obstacle &Field) {
        AddAll(Field.X, Field.Y, Field.Speed, Field.Width, Field.Height, Field.HitFlash, Field.Lane, Field.Hp,
            Field.Score, Field.Type);
    }

    void Add(const Item &Field) {
        AddAll(Field.X, Field.Y, Field.Speed, Field.Radius, Field.Lane, Field.Type);
    }

    void Add(const Explosion &Field) {
        AddAll(Field.X, Field.Y, Field.Age, Field.Life, Field.MaxRadius, Field.Color);
    }

    template <typename Thing> void Add(const std::vector<Thing> &List) {
        Add(List.size());
        for (const Thing &thing : List) {
            Add(thing);
        }
    }

    template <typename... Fields> void AddAll(const Fields &...Each) {
        (Add(Each), ...);
    }

    void AddText(std::string_view Text) {
        for (const char character : Text) {
            AddByte(static_cast<std::uint8_t>(character));
        }
    }

    std::uint64_t Value() const {
        return Hash;
    }

private:
    void AddByte(std::uint8_t Byte) {
        Hash = (Hash ^ Byte) * 0x100000001B3U;
    }

    void AddNumber(std::uint64_t Number) {
        for (unsigned shift = 0; shift < 64; shift += 8) {
            AddByte(static_cast<std::uint8_t>(Number >> shift & 0xFFU));
        }
    }

    std::uint64_t Hash = 0xCBF29CE484222325U;
};

inline std::uint64_t HashOfRun(const GameState &State) {
    RecordHash hash;
    hash.AddAll(State.Screen, State.Score, State.HighScore, State.Stage, State.PreviousStage,
        State.WaterFlowDirection, State.PreviousWaterFlowDirection, State.GameTime, State.RoadScroll,
        State.CurrentScrollSpeed, State.StageTransition, State.SpawnTimer, State.ObstacleSpawnTimer,
        State.ItemSpawnTimer, State.ReadyBanner, State.InvulnerabilityTimer, State.LaneMoveCooldown,
        State.AmmoRegenPause, State.AmmoMeter, State.Bombs, State.FirstAidKits, State.PlayerLane,
        State.SpecialActive, State.SpecialTimer, State.InvincibilityPowerTimer, State.DualWeaponPowerTimer,
        State.PlayerDying, State.DeathTimer, State.HasRunState, State.SaveRequested, State.SaveDelay,
        State.Player);
    hash.AddAll(
        State.Bullets, State.EnemyBullets, State.Enemies, State.Obstacles, State.Items, State.Explosions);
    hash.Add(State.PendingSounds.Count);
    for (std::size_t i = 0; i < State.PendingSounds.Count; ++i) {
        hash.Add(State.PendingSounds.Ids[i]);
    }
    std::mt19937 generator = State.Rng;
    for (std::size_t i = 0; i < std::mt19937::state_size; ++i) {
        hash.Add(generator());
    }
    return hash.Value();
}

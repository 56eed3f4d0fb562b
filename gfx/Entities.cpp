#include "gfx/Entities.hpp"

#include "gfx/Draw.hpp"
#include "gfx/PackedColor.hpp"
#include "state/GameState.hpp"
#include "state/Numbers.hpp"

#include <algorithm>

namespace {

// Sizes in logical pixels.
constexpr float EntitySize = 26.0F; ///< of enemies and items
constexpr float ObstacleScale = 1.3F;

constexpr float EndingFlashAlpha = 120.0F; ///< a fresh flash has twice as much

constexpr float HalfBlinksPerSecond = 15.0F; ///< the car is shown in one half and hidden in the other

constexpr float HaloRadius = 18.2F;
constexpr std::uint32_t HaloColor = 0x6E96EBFF;

constexpr std::uint32_t PlayerBulletOuter = 0xFF48D0F0;
constexpr std::uint32_t PlayerBulletInner = 0xFF84ECFF;
constexpr std::uint32_t EnemyBulletOuter = 0xFF4884FA;
constexpr std::uint32_t EnemyBulletInner = 0xFF82CDFF;

SpriteId ItemSprite(std::int32_t Type) {
    switch (Type) {
    case ItemTypeBomb:
        return SpriteItemBomb;
    case ItemTypeInvincibility:
        return SpriteItemInvincibility;
    case ItemTypeDualWeapon:
        return SpriteItemDualWeapon;
    default:
        return SpriteItemFirstAid;
    }
}

SpriteId ObstacleSprite(std::int32_t Type) {
    switch (Type) {
    case ObstacleTypeLog:
        return SpriteObstacleLog;
    case ObstacleTypeRock:
        return SpriteObstacleRock;
    default:
        return SpriteObstacleBarrier;
    }
}

SpriteId PlayerSprite(bool Invincible, bool DualWeapon) {
    if (Invincible) {
        return DualWeapon ? SpritePlayerInvincibleDualWeapon : SpritePlayerInvincible;
    }
    return DualWeapon ? SpritePlayerDualWeapon : SpritePlayer;
}

/// Draws a sprite on whole pixels, and over it a red flash while it has just been hit.
void DrawHittable(
    SDL_Renderer *Renderer, SpriteId Id, float X, float Y, float Width, float Height, float HitFlash) {
    DrawSprite(Renderer, Id, RoundToWhole(X), RoundToWhole(Y), Width, Height);
    if (HitFlash > 0.0F) {
        const float strength = std::min(HitFlash / HitFlashSeconds, 1.0F);
        const auto alpha = static_cast<std::uint32_t>(strength * EndingFlashAlpha + EndingFlashAlpha);
        const std::uint32_t tint = alpha << 24U | 0x003C3CFFU;
        DrawSpriteTinted(Renderer, Id, RoundToWhole(X), RoundToWhole(Y), Width, Height, tint);
    }
}

void DrawItems(SDL_Renderer *Renderer, const GameState &State) {
    for (const Item &item : State.Items) {
        DrawSprite(Renderer, ItemSprite(item.Type), RoundToWhole(item.X), RoundToWhole(item.Y), EntitySize,
            EntitySize);
    }
}

void DrawObstacles(SDL_Renderer *Renderer, const GameState &State) {
    for (const Obstacle &obstacle : State.Obstacles) {
        DrawHittable(Renderer, ObstacleSprite(obstacle.Type), obstacle.X, obstacle.Y,
            obstacle.Width * ObstacleScale, obstacle.Height * ObstacleScale, obstacle.HitFlash);
    }
}

void DrawBullets(SDL_Renderer *Renderer, const GameState &State) {
    const int snapStep = GetPixelSnapStep(Renderer);
    for (const Bullet &bullet : State.Bullets) {
        DrawBullet(Renderer, bullet.X, bullet.Y, snapStep, true, PlayerBulletOuter, PlayerBulletInner);
    }
    for (const EnemyBullet &bullet : State.EnemyBullets) {
        DrawBullet(Renderer, bullet.X, bullet.Y, snapStep, false, EnemyBulletOuter, EnemyBulletInner);
    }
}

/// NOT-BUGS: An enemy car's own colour is not drawn
void DrawEnemies(SDL_Renderer *Renderer, const GameState &State) {
    for (const Enemy &enemy : State.Enemies) {
        const SpriteId sprite = enemy.Hp > 1 ? SpriteEnemyTough : SpriteEnemy;
        DrawHittable(Renderer, sprite, enemy.X, enemy.Y, EntitySize, EntitySize, enemy.HitFlash);
    }
}

void DrawExplosion(SDL_Renderer *Renderer, const Explosion &Disc) {
    // Only a damaged file holds a life of 0; such an explosion is drawn as at its first moment.
    const float t = Disc.Life == 0.0F ? 0.0F : std::clamp(Disc.Age / Disc.Life, 0.0F, 1.0F);
    Color color = Disc.Color;
    color.A = static_cast<std::uint8_t>(TruncateToInt(static_cast<float>(color.A) * (1.0F - t)));
    FillDisc(Renderer, RoundToWhole(Disc.X), RoundToWhole(Disc.Y), Disc.MaxRadius * t, Packed(color));
}

void DrawExplosions(SDL_Renderer *Renderer, const GameState &State) {
    for (const Explosion &explosion : State.Explosions) {
        DrawExplosion(Renderer, explosion);
    }
}

/// The car blinks while it cannot be hurt after a hit.
bool IsPlayerShown(const GameState &State) {
    if (State.PlayerDying || State.Screen == ScreenGameOver) {
        return false;
    }
    const bool blinks = State.InvulnerabilityTimer > 0.0F;
    return !blinks || TruncateToInt(State.InvulnerabilityTimer * HalfBlinksPerSecond) % 2 != 0;
}

void DrawPlayer(SDL_Renderer *Renderer, const GameState &State) {
    if (!IsPlayerShown(State)) {
        return;
    }
    const float x = RoundToWhole(State.Player.X);
    const float y = RoundToWhole(State.Player.Y);
    const bool invincible = State.InvincibilityPowerTimer > 0.0F;
    if (invincible) {
        FillDisc(Renderer, x, y, HaloRadius, HaloColor);
    }
    const SpriteId sprite = PlayerSprite(invincible, State.DualWeaponPowerTimer > 0.0F);
    DrawSprite(Renderer, sprite, x, y, CarSize, CarSize);
}

} // namespace

void DrawEntities(SDL_Renderer *Renderer, const GameState &State) {
    DrawItems(Renderer, State);
    DrawObstacles(Renderer, State);
    DrawBullets(Renderer, State);
    DrawEnemies(Renderer, State);
    DrawExplosions(Renderer, State);
    DrawPlayer(Renderer, State);
}

void DrawBullet(SDL_Renderer *Renderer, float X, float Y, int SnapStep, bool FliesUp,
    std::uint32_t OuterColor, std::uint32_t InnerColor) {
    const auto s = static_cast<float>(std::max(SnapStep, 1));
    const float left = SnapToStep(X, SnapStep) - s;
    const float top = SnapToStep(Y, SnapStep) - (FliesUp ? 5.0F * s : s);
    FillRect(Renderer, left, top, 3.0F * s, 6.0F * s, OuterColor);
    FillRect(Renderer, left + s, top + s, s, 4.0F * s, InnerColor);
}

#include "sim/Explosions.hpp"

#include "state/GameState.hpp"

void AddExplosion(GameState &State, float X, float Y, float Life, float MaxRadius, struct Color Color) {
    State.Explosions.push_back({X, Y, 0.0F, Life, MaxRadius, Color});
}

void AddExplosion(GameState &State, float X, float Y, const ExplosionLook &Look) {
    AddExplosion(State, X, Y, Look.Life, Look.MaxRadius, Look.Color);
}

void AgeExplosions(GameState &State, float dt) {
    for (Explosion &explosion : State.Explosions) {
        explosion.Age += dt;
    }
    std::erase_if(State.Explosions, [](const Explosion &Explosion) {
        return Explosion.Age >= Explosion.Life;
    });
}

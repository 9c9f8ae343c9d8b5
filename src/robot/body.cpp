#include "robot/body.h"

#include <box2d/box2d.h>

#include <algorithm>
#include <cmath>

#include "robot/wheels.h"

namespace quorrin {

namespace {

constexpr double kMass_kg = 15.0;
constexpr double kInertia_kgm2 = 0.5 * kMass_kg * kRobotRadius_m * kRobotRadius_m;
// A motor at its current limit pushes this hard; a wheel holds a little more on dry floor, so that it stalls
// there rather than spins.
constexpr double kMotorForce_N = 26.0;
constexpr double kWheelGrip_N = 30.0;
constexpr double kSideGrip_N = 60.0;

// Drive currents. Rolling freely stays far below 0.6 A, the load that a station's guard counts; a stalled
// wheel is limited to 1.1 A.
constexpr double kIdle_A = 0.03;
constexpr double kRolling_A = 0.15;
constexpr double kSpeed_A_per_mps = 0.2;
constexpr double kStall_A = 1.1;
constexpr double kForce_A_per_N = (kStall_A - kRolling_A - kIdle_A) / kMotorForce_N;

constexpr double kStallCreep_mps = 0.01;

constexpr double kBoxFriction = 0.35;
constexpr double kGravity = 9.81;
constexpr double kContactGap_s = 0.5;

b2Vec2 toBox(Vec2 v) {
    return {static_cast<float>(v.x), static_cast<float>(v.y)};
}
Vec2 fromBox(b2Vec2 v) {
    return {static_cast<double>(v.x), static_cast<double>(v.y)};
}

enum Category : std::uint16_t { kThings = 1, kRobot = 2, kPerson = 4 };

// Counts touches of the robot; sliding along and bouncing within half a second are one.
class ContactCounter : public b2ContactListener {
  public:
    explicit ContactCounter(const b2Body* robot) : robot_(robot) {}
    void BeginContact(b2Contact* contact) override {
        if (!concerns(contact)) return;
        if (touching_++ == 0 && now_ - lastEnd_ >= kContactGap_s) ++count_;
    }
    void EndContact(b2Contact* contact) override {
        if (!concerns(contact)) return;
        if (--touching_ == 0) lastEnd_ = now_;
    }
    void advance(double dt_s) { now_ += dt_s; }
    int count() const { return count_; }

  private:
    bool concerns(b2Contact* contact) const {
        return contact->GetFixtureA()->GetBody() == robot_ || contact->GetFixtureB()->GetBody() == robot_;
    }
    const b2Body* robot_;
    int touching_ = 0;
    int count_ = 0;
    double now_ = 0;
    double lastEnd_ = -1;
};

}  // namespace

struct Body::World {
    b2World world{b2Vec2(0.0f, 0.0f)};
    b2Body* ground = nullptr;
    b2Body* robot = nullptr;
    std::vector<b2Body*> boxes;
    std::vector<std::array<Vec2, 4>> boxCorners;  // in the box's own frame
    std::vector<b2Body*> people;
    std::unique_ptr<ContactCounter> counter;

    void addFixed(const Site& site) {
        b2BodyDef def;
        ground = world.CreateBody(&def);
        for (const Segment& segment : fixedSegments(site)) {
            if (length(segment.b - segment.a) < 0.005) continue;  // shorter than the engine can handle
            b2EdgeShape shape;
            shape.SetTwoSided(toBox(segment.a), toBox(segment.b));
            b2FixtureDef fixture;
            fixture.shape = &shape;
            fixture.friction = 0.2f;
            fixture.filter.categoryBits = kThings;
            ground->CreateFixture(&fixture);
        }
    }

    void addRobot(const Pose& start) {
        b2BodyDef def;
        def.type = b2_dynamicBody;
        def.position = toBox(start.at);
        def.angle = static_cast<float>(start.heading);
        def.allowSleep = false;
        robot = world.CreateBody(&def);
        b2CircleShape shape;
        shape.m_radius = static_cast<float>(kRobotRadius_m);
        b2FixtureDef fixture;
        fixture.shape = &shape;
        fixture.density = static_cast<float>(kMass_kg / (b2_pi * kRobotRadius_m * kRobotRadius_m));
        fixture.friction = 0.2f;
        fixture.filter.categoryBits = kRobot;
        robot->CreateFixture(&fixture);
    }

    void addBox(const MovableBox& box) {
        b2BodyDef def;
        def.type = b2_dynamicBody;
        def.position = toBox(box.at);
        def.angle = static_cast<float>(box.angle);
        b2Body* body = world.CreateBody(&def);
        b2PolygonShape shape;
        shape.SetAsBox(static_cast<float>(box.width_m / 2), static_cast<float>(box.depth_m / 2));
        b2FixtureDef fixture;
        fixture.shape = &shape;
        fixture.density = static_cast<float>(box.mass_kg / (box.width_m * box.depth_m));
        fixture.friction = 0.2f;
        fixture.filter.categoryBits = kThings;
        fixture.filter.maskBits = kThings | kRobot;  // people walk around boxes
        body->CreateFixture(&fixture);
        // Friction on the floor: what it takes to slide and to turn it.
        b2FrictionJointDef friction;
        friction.Initialize(ground, body, body->GetWorldCenter());
        const double force = kBoxFriction * box.mass_kg * kGravity;
        friction.maxForce = static_cast<float>(force);
        friction.maxTorque = static_cast<float>(force * (box.width_m + box.depth_m) / 6);
        world.CreateJoint(&friction);
        boxes.push_back(body);
        const double w = box.width_m / 2;
        const double d = box.depth_m / 2;
        boxCorners.push_back({Vec2{-w, -d}, Vec2{w, -d}, Vec2{w, d}, Vec2{-w, d}});
    }

    b2Body* addPerson(Vec2 at) {
        b2BodyDef def;
        def.type = b2_kinematicBody;
        def.position = toBox(at);
        b2Body* body = world.CreateBody(&def);
        b2CircleShape shape;
        shape.m_radius = static_cast<float>(kPersonRadius_m);
        b2FixtureDef fixture;
        fixture.shape = &shape;
        fixture.friction = 0.2f;
        fixture.filter.categoryBits = kPerson;
        fixture.filter.maskBits = kRobot;
        body->CreateFixture(&fixture);
        return body;
    }
};

Body::Body(const Site& site) : world_(std::make_unique<World>()), slippery_(site.slippery) {
    world_->addFixed(site);
    world_->addRobot(site.start);
    for (const MovableBox& box : site.boxes) world_->addBox(box);
    world_->counter = std::make_unique<ContactCounter>(world_->robot);
    world_->world.SetContactListener(world_->counter.get());
}

Body::~Body() {
    world_->world.SetContactListener(nullptr);
}

double Body::gripAt(Vec2 point) const {
    for (const SlipperyPatch& patch : slippery_)
        if (point.x >= patch.low.x && point.x <= patch.high.x && point.y >= patch.low.y &&
            point.y <= patch.high.y)
            return patch.grip;
    return 1.0;
}

void Body::updatePeople(const std::vector<Vec2>& people, double dt_s) {
    std::vector<b2Body*>& bodies = world_->people;
    while (bodies.size() > people.size()) {
        world_->world.DestroyBody(bodies.back());
        bodies.pop_back();
    }
    for (std::size_t i = 0; i < people.size(); ++i) {
        if (i == bodies.size()) {
            bodies.push_back(world_->addPerson(people[i]));
            continue;
        }
        const Vec2 way = people[i] - fromBox(bodies[i]->GetPosition());
        const Vec2 speed = way * (1.0 / dt_s);
        if (length(way) > 0.5)
            bodies[i]->SetTransform(toBox(people[i]), 0.0f);  // another person has this place now
        else
            bodies[i]->SetLinearVelocity(toBox(speed));
    }
}

void Body::step(double dt_s, const WheelTargets& targets, const std::array<bool, 2>& held,
                const std::array<double, 2>& slip, const std::vector<Vec2>& people) {
    b2Body& robot = *world_->robot;
    updatePeople(people, dt_s);

    const double heading = static_cast<double>(robot.GetAngle());
    const Vec2 nose = unitVector(heading);
    const Vec2 left{-nose.y, nose.x};
    const Vec2 at = fromBox(robot.GetPosition());
    const Vec2 velocity = fromBox(robot.GetLinearVelocity());

    std::array<double, 2> wanted{};
    for (std::size_t side = 0; side < 2; ++side) wanted[side] = held[side] ? 0.0 : targets.speed_mps[side];
    const double wantedForward = (wanted[0] + wanted[1]) / 2;
    const double wantedTurn = (wanted[1] - wanted[0]) / kWheelBase_m;
    const double forward = dot(velocity, nose);
    const double turn = static_cast<double>(robot.GetAngularVelocity());
    const double push = kMass_kg * (wantedForward - forward) / dt_s;
    const double torque = kInertia_kgm2 * (wantedTurn - turn) / dt_s;

    std::array<double, 2> force{push / 2 - torque / kWheelBase_m, push / 2 + torque / kWheelBase_m};
    std::array<bool, 2> spins{};
    std::array<bool, 2> stalls{};
    double sideGrip = kSideGrip_N;
    for (std::size_t side = 0; side < 2; ++side) {
        const Vec2 wheelAt = at + left * (side == 0 ? kWheelBase_m / 2 : -kWheelBase_m / 2);
        const double grip = slippery_.empty() ? 1.0 : gripAt(wheelAt);
        sideGrip = std::min(sideGrip, kSideGrip_N * grip);
        // A wheel that is held pushes back as hard as it holds the floor; a driven one as hard as its motor.
        const double hold = kWheelGrip_N * grip;
        const double limit = held[side] ? hold : std::min(hold, kMotorForce_N);
        if (std::abs(force[side]) > limit) {
            force[side] = std::copysign(limit, force[side]);
            (limit < kMotorForce_N ? spins : stalls)[side] = true;
        }
    }

    const double sideways = std::clamp(-kMass_kg * dot(velocity, left) / dt_s, -sideGrip, sideGrip);
    robot.ApplyForceToCenter(toBox(nose * (force[0] + force[1]) + left * sideways), true);
    robot.ApplyTorque(static_cast<float>((force[1] - force[0]) * kWheelBase_m / 2), true);
    world_->counter->advance(dt_s);
    world_->world.Step(static_cast<float>(dt_s), 6, 2);

    const Vec2 after = fromBox(robot.GetLinearVelocity());
    const Vec2 noseAfter = unitVector(static_cast<double>(robot.GetAngle()));
    forward_ = dot(after, noseAfter);
    turn_ = static_cast<double>(robot.GetAngularVelocity());
    distance_ += length(fromBox(robot.GetPosition()) - at);

    for (std::size_t side = 0; side < 2; ++side) {
        WheelState& wheel = wheels_[side];
        const double floor = forward_ + (side == 0 ? -turn_ : turn_) * kWheelBase_m / 2;
        double rim = floor * (1.0 + slip[side]);
        if (spins[side]) rim = wanted[side];
        // A stalled wheel does not creep with the last shivers of what it pushes against.
        if (held[side] || (stalls[side] && std::abs(rim) < kStallCreep_mps)) rim = 0;
        wheel.speed_mps = rim;
        wheel.travelled_m += rim * dt_s;
        if (!targets.powered[side]) {
            wheel.current_A = kIdle_A;
            continue;
        }
        const bool asked = std::abs(targets.speed_mps[side]) > 0.001;
        if (asked && (held[side] || stalls[side])) {
            wheel.current_A = kStall_A;
        } else {
            wheel.current_A = kIdle_A + (asked ? kRolling_A : 0.0) + kSpeed_A_per_mps * std::abs(rim) +
                              kForce_A_per_N * std::abs(force[side]);
        }
    }
}

Pose Body::pose() const {
    return {fromBox(world_->robot->GetPosition()), wrapAngle(static_cast<double>(world_->robot->GetAngle()))};
}

int Body::contacts() const {
    return world_->counter->count();
}

std::vector<std::array<Vec2, 4>> Body::boxes() const {
    std::vector<std::array<Vec2, 4>> result;
    for (std::size_t i = 0; i < world_->boxes.size(); ++i) {
        const Vec2 at = fromBox(world_->boxes[i]->GetPosition());
        const double angle = static_cast<double>(world_->boxes[i]->GetAngle());
        std::array<Vec2, 4> corners{};
        for (std::size_t k = 0; k < 4; ++k) corners[k] = at + rotated(world_->boxCorners[i][k], angle);
        result.push_back(corners);
    }
    return result;
}

void Body::boxSegments(std::vector<Segment>& into) const {
    for (const auto& corners : boxes())
        for (std::size_t k = 0; k < 4; ++k) into.push_back({corners[k], corners[(k + 1) % 4]});
}

}  // namespace quorrin

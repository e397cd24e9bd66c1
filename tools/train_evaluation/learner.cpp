#include "train_evaluation/learner.h"

#include <algorithm>
#include <cmath>
#include <istream>
#include <ostream>
#include <span>
#include <stdexcept>

#include "core/random_numbers.h"

namespace qarn {
namespace {

constexpr std::size_t lessonsAStep = 32;
constexpr std::size_t numberCount = sizeof(Weights) / sizeof(float);
static_assert(sizeof(Weights) % sizeof(float) == 0 && std::is_trivially_copyable_v<Weights>);

// All numbers of the network one after the other.
std::span<float, numberCount> NumbersOf(Weights& weights) {
    return std::span<float, numberCount>(&weights.toHidden[0][0], numberCount);
}
std::span<const float, numberCount> NumbersOf(const Weights& weights) {
    return std::span<const float, numberCount>(&weights.toHidden[0][0], numberCount);
}

}  // namespace

Learner::Learner(std::uint64_t seed) {
    UniformGenerator chance;
    chance.Seed(seed);
    for (auto& row : weights_.toHidden) {
        for (float& weight : row) weight = static_cast<float>(chance.Next() - 0.5) / 4;
    }
    weights_.past[balanceFeature] = aheadCounts;
    for (float& weight : weights_.fromHidden) weight = static_cast<float>(chance.Next() - 0.5) / 4;
}

float Learner::Learn(const std::vector<const Lesson*>& lessons, float rate) {
    float entropy = 0;
    for (std::size_t first = 0; first < lessons.size(); first += lessonsAStep) {
        const std::size_t last = std::min(first + lessonsAStep, lessons.size());
        Weights gradient;
        for (std::size_t k = first; k < last; ++k) {
            const float target = lessons[k]->target;
            const float value = Activate(lessons[k]->features, weights_).value;
            entropy -= target * std::log(value) + (1 - target) * std::log(1 - value);
            AddGradient(*lessons[k], gradient);
        }
        Step(gradient, rate);
    }
    return entropy / static_cast<float>(std::max<std::size_t>(1, lessons.size()));
}

void Learner::AddGradient(const Lesson& lesson, Weights& gradient) const {
    const Activation active = Activate(lesson.features, weights_);
    // The slopes of the curves s = x / (1 + |x|): of the cross entropy by the sum, and of s by x.
    const float slope = (active.value - lesson.target) * 2 / (1 + 2 * std::abs(active.sum));
    const auto curve = [](float s) { return (1 - std::abs(s)) * (1 - std::abs(s)); };
    std::array<float, Weights::hidden> back{};
    for (std::size_t k = 0; k < Weights::hidden; ++k) {
        back[k] = slope * weights_.fromHidden[k] * curve(active.hidden[k]);
        gradient.fromHidden[k] += slope * active.hidden[k];
        gradient.hiddenBias[k] += back[k];
    }
    for (std::size_t i = 0; i < Weights::inputs; ++i) {
        const float feature = lesson.features[i];
        for (std::size_t k = 0; k < Weights::hidden; ++k) {
            gradient.toHidden[i][k] += back[k] * feature;
        }
        gradient.past[i] += slope * feature;
    }
    gradient.bias += slope;
}

void Learner::Step(const Weights& gradient, float rate) {
    constexpr float keepsMean = 0.9F;
    constexpr float keepsSquare = 0.999F;
    ++steps_;
    const auto steps = static_cast<float>(steps_);
    const float scale =
        rate * std::sqrt(1 - std::pow(keepsSquare, steps)) / (1 - std::pow(keepsMean, steps));
    const auto numbers = NumbersOf(weights_);
    const auto means = NumbersOf(mean_);
    const auto squares = NumbersOf(square_);
    const auto slopes = NumbersOf(gradient);
    for (std::size_t k = 0; k < numberCount; ++k) {
        const float slope = slopes[k] / lessonsAStep;
        means[k] += (1 - keepsMean) * (slope - means[k]);
        squares[k] += (1 - keepsSquare) * (slope * slope - squares[k]);
        numbers[k] -= scale * means[k] / (std::sqrt(squares[k]) + 1e-8F);
    }
}

void Learner::Write(std::ostream& out) const {
    out << steps_ << '\n' << std::hexfloat;
    for (const Weights* part : {&weights_, &mean_, &square_}) {
        for (const float number : NumbersOf(*part)) out << number << '\n';
    }
    out << std::defaultfloat;
}

void Learner::Read(std::istream& in) {
    in >> steps_;
    std::string word;
    for (Weights* part : {&weights_, &mean_, &square_}) {
        for (float& number : NumbersOf(*part)) {
            if (in >> word) number = std::strtof(word.c_str(), nullptr);
        }
    }
    if (!in) throw std::runtime_error("The state can not be read.");
}

}  // namespace qarn

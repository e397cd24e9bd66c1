#pragma once

namespace qarn {

/// A part of a whole, and the bounds of its 95 % interval.
struct Share {
    double value = 0.5;
    double low = 0;
    double high = 1;
};

/// The scores of pairs of games that differ in the exchange of the sides alone. What luck the two
/// games of a pair have in common makes their results depend on each other, so the pair, not the
/// game, is what is counted; a pair's score is the mean of its games' and lies between 0 and 1.
class PairScores {
public:
    void Add(double score);
    void Add(const PairScores& others);

    /// The mean score, with the normal interval: 1.96 standard errors to both sides, cut off at 0
    /// and 1. The variance is that of the pairs and of one pair lost and one won besides, so that a
    /// few equal results do not pass for certainty.
    Share Mean() const;

    /// The logarithm of the likelihood ratio of a true score of 55 % against one of 50 %, for a
    /// sequential probability ratio test (A. Wald, Sequential Tests of Statistical Hypotheses,
    /// Annals of Mathematical Statistics 16, 1945). The mean is taken as normally distributed, with
    /// the variance told above.
    double LogLikelihoodRatio() const;

private:
    double Variance() const;

    double count_ = 0;
    double sum_ = 0;
    double squares_ = 0;
};

/// What a sequential test of one player against another has come to.
enum class Verdict {
    Open,    ///< nothing yet
    Better,  ///< 55 % is accepted
    Equal,   ///< 50 %, or less, is accepted
};

/// The verdict at a logarithm of the likelihood ratio, at which either error has a probability of
/// 5 %.
Verdict VerdictAt(double logLikelihoodRatio);

}  // namespace qarn

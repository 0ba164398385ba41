#pragma once

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <array>
#include <cstddef>

namespace Bench {

constexpr std::size_t runs = 5;

using Samples = std::array<double, runs>;

inline double median(Samples samples)
{
    std::ranges::sort(samples);
    return samples[runs / 2];
}

/// How long one call takes, in milliseconds.
template<typename Work>
double milliseconds(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// The medians of two pieces of work that run alternately, so that other load affects both.
struct Pair
{
    double ours = 0;
    double peer = 0;
    double ratio() const { return ours / peer; }
};

template<typename Ours, typename Peer>
Pair sideBySide(Ours ours, Peer peer)
{
    Samples ourSamples{};
    Samples peerSamples{};
    for (std::size_t run = 0; run < runs; ++run) {
        peerSamples[run] = milliseconds(peer);
        ourSamples[run] = milliseconds(ours);
    }
    return {median(ourSamples), median(peerSamples)};
}

/// The process's peak memory so far, in megabytes; 0 if the system does not report it.
inline double peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).chopped(3).trimmed().toDouble() / 1024;
    }
    return 0;
}

} // namespace Bench

#include "adapters/sound/pulse_play.h"

#include <pulse/pulseaudio.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

namespace vigrel {
namespace {

using Clock = std::chrono::steady_clock;

// How long a turn of the play waits for the server at most.
constexpr int kTurnMicroseconds = 20000;
// What is handed to the server ahead of its playing: enough for a machine that is busy for a moment.
constexpr int kAheadMilliseconds = 300;
// What a connection that is being made gets to be made whole once the play is called off.
constexpr auto kCalledOffPatience = std::chrono::milliseconds(200);

template <class T, auto unref>
struct cUnref {
    void operator()(T* object) const { unref(object); }
};
using Loop = std::unique_ptr<pa_mainloop, cUnref<pa_mainloop, pa_mainloop_free>>;
using Operation = std::unique_ptr<pa_operation, cUnref<pa_operation, pa_operation_unref>>;

struct cEndContext {
    void operator()(pa_context* context) const {
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
};
struct cEndStream {
    void operator()(pa_stream* stream) const {
        if (pa_stream_get_state(stream) != PA_STREAM_UNCONNECTED) pa_stream_disconnect(stream);
        pa_stream_unref(stream);
    }
};

// One play from connection to end. The library only tells; each step asks it and waits a turn.
class cPlay {
  public:
    cPlay(cSampleSource& source, const std::function<bool()>& goesOn) : m_Source(source), m_GoesOn(goesOn) {}

    bool Run() { return Connect() && OpenStream() && Feed() && Drain(); }

  private:
    // A turn of the loop. False when the play is to end: called off, or nothing moved for too long.
    bool Turn() { return m_GoesOn() && TurnUnasked(); }
    bool TurnUnasked() {
        if (Clock::now() > m_Patience) return false;
        return pa_mainloop_prepare(m_Loop.get(), kTurnMicroseconds) >= 0 &&
               pa_mainloop_poll(m_Loop.get()) >= 0 && pa_mainloop_dispatch(m_Loop.get()) >= 0;
    }
    void Moved() { m_Patience = Clock::now() + std::chrono::milliseconds(kServerPatienceMilliseconds); }

    bool Connect();
    bool OpenStream();
    bool Feed();
    bool Write(std::size_t bytes);
    bool Drain();

    cSampleSource& m_Source;
    const std::function<bool()>& m_GoesOn;
    Clock::time_point m_Patience;
    bool m_SourceOver = false;
    // In the order in which they are let go, backwards.
    Loop m_Loop;
    std::unique_ptr<pa_context, cEndContext> m_Context;
    std::unique_ptr<pa_stream, cEndStream> m_Stream;
};

bool cPlay::Connect() {
    Moved();
    m_Loop.reset(pa_mainloop_new());
    if (!m_Loop) return false;
    m_Context.reset(pa_context_new(pa_mainloop_get_api(m_Loop.get()), "Vigrel Alarm Receiver"));
    if (!m_Context || pa_context_connect(m_Context.get(), nullptr, PA_CONTEXT_NOFLAGS, nullptr) < 0)
        return false;
    // The library leaves memory and descriptors behind of a connection that is given up while it is being
    // made.
    bool goesOn = true;
    while (pa_context_get_state(m_Context.get()) != PA_CONTEXT_READY) {
        if (goesOn && !m_GoesOn()) {
            goesOn = false;
            m_Patience = std::min(m_Patience, Clock::now() + kCalledOffPatience);
        }
        if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(m_Context.get())) || !TurnUnasked()) return false;
    }
    return goesOn;
}

bool cPlay::OpenStream() {
    Moved();
    pa_sample_spec format{PA_SAMPLE_FLOAT32NE, static_cast<std::uint32_t>(m_Source.SampleRate()),
                          static_cast<std::uint8_t>(m_Source.Channels())};
    if (m_Source.Channels() > int{PA_CHANNELS_MAX} || !pa_sample_spec_valid(&format)) return false;
    m_Stream.reset(pa_stream_new(m_Context.get(), "Alarm", &format, nullptr));
    constexpr auto kServersChoice = static_cast<std::uint32_t>(-1);
    const auto ahead =
        static_cast<std::uint32_t>(pa_usec_to_bytes(kAheadMilliseconds * PA_USEC_PER_MSEC, &format));
    const pa_buffer_attr buffer{kServersChoice, ahead, kServersChoice, kServersChoice, kServersChoice};
    if (!m_Stream || pa_stream_connect_playback(m_Stream.get(), nullptr, &buffer, PA_STREAM_NOFLAGS, nullptr,
                                                nullptr) < 0) {
        return false;
    }
    while (pa_stream_get_state(m_Stream.get()) != PA_STREAM_READY) {
        if (!PA_STREAM_IS_GOOD(pa_stream_get_state(m_Stream.get())) || !Turn()) return false;
    }
    return true;
}

bool cPlay::Feed() {
    Moved();
    while (!m_SourceOver) {
        const std::size_t room = pa_stream_writable_size(m_Stream.get());
        if (room == static_cast<std::size_t>(-1)) return false;  // the stream is gone
        // Room for less than a frame is none.
        if (room >= static_cast<std::size_t>(m_Source.Channels()) * sizeof(float)) {
            if (!Write(room)) return false;
            Moved();
        } else if (!Turn()) {
            return false;
        }
    }
    return true;
}

bool cPlay::Write(std::size_t bytes) {
    const auto channels = static_cast<std::size_t>(m_Source.Channels());
    std::vector<float> samples(bytes / sizeof(float));
    const std::int64_t frames =
        m_Source.ReadFrames(samples.data(), static_cast<std::int64_t>(samples.size() / channels));
    m_SourceOver = frames <= 0;
    if (m_SourceOver) return true;
    return pa_stream_write(m_Stream.get(), samples.data(),
                           static_cast<std::size_t>(frames) * channels * sizeof(float), nullptr, 0,
                           PA_SEEK_RELATIVE) >= 0;
}

bool cPlay::Drain() {
    bool drained = false;
    const Operation operation(pa_stream_drain(
        m_Stream.get(),
        [](pa_stream*, int success, void* result) { *static_cast<bool*>(result) = success != 0; }, &drained));
    Moved();
    while (operation && pa_operation_get_state(operation.get()) == PA_OPERATION_RUNNING) {
        if (!PA_STREAM_IS_GOOD(pa_stream_get_state(m_Stream.get())) || !Turn()) {
            pa_operation_cancel(operation.get());
            return false;
        }
    }
    return drained;
}

}  // namespace

bool PlayThroughServer(cSampleSource& source, const std::function<bool()>& goesOn) {
    return cPlay(source, goesOn).Run();
}

}  // namespace vigrel

#include "adapters/linux/read_ahead.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>

#include "adapters/linux/start_thread.h"
#include "common/failure.h"

namespace vigrel {
namespace {

// Some files at a time, so that threads seldom wait for each other; and so many of these ahead of the caller.
constexpr std::size_t kChunkFiles = 128, kChunksAhead = 8;
constexpr int kThreads = 2;

struct cChunk {
    std::vector<std::string> contents;  // up to the file that failed
    std::exception_ptr failure;
    bool done = false;
};

class cReader {
  public:
    cReader(const cFileReader& files, const std::string& folder, const std::vector<std::string>& names)
        : m_Files(files),
          m_Folder(folder),
          m_Names(names),
          m_Chunks((names.size() + kChunkFiles - 1) / kChunkFiles) {
        m_Threads.reserve(kThreads);
        // Where the machine gives none, the caller reads.
        SkipFailure([this] {
            for (int i = 0; i < kThreads; ++i) m_Threads.push_back(StartThread([this] { Run(); }));
        });
    }
    ~cReader() {
        {
            const std::lock_guard lock(m_Mutex);
            m_Stopped = true;
        }
        m_Changed.notify_all();
        for (std::thread& thread : m_Threads) thread.join();
    }
    cReader(const cReader&) = delete;
    cReader& operator=(const cReader&) = delete;

    void Deliver(const cFileReader::TakeContent& take) {
        for (std::size_t i = 0; i < m_Chunks.size(); ++i) {
            cChunk chunk = m_Threads.empty() ? Read(i * kChunkFiles) : TakeChunk(i);
            std::size_t name = i * kChunkFiles;
            for (std::string& content : chunk.contents) take(name++, std::move(content));
            if (chunk.failure) std::rethrow_exception(chunk.failure);
        }
    }

  private:
    cChunk TakeChunk(std::size_t number) {
        std::unique_lock lock(m_Mutex);
        m_Changed.wait(lock, [&] { return m_Chunks[number].done; });
        m_Taken = number + 1;
        m_Changed.notify_all();
        return std::move(m_Chunks[number]);
    }
    void Run() {
        std::unique_lock lock(m_Mutex);
        while (true) {
            m_Changed.wait(lock, [this] {
                return m_Stopped || m_Next == m_Chunks.size() || m_Next < m_Taken + kChunksAhead;
            });
            if (m_Stopped || m_Next == m_Chunks.size()) return;
            const std::size_t number = m_Next++;
            lock.unlock();
            cChunk chunk = Read(number * kChunkFiles);
            lock.lock();
            m_Chunks[number] = std::move(chunk);
            m_Changed.notify_all();
        }
    }
    cChunk Read(std::size_t first) const {
        cChunk chunk;
        chunk.done = true;
        const std::size_t end = std::min(first + kChunkFiles, m_Names.size());
        try {
            for (std::size_t i = first; i < end; ++i) {
                chunk.contents.push_back(m_Files.ReadFile(m_Folder + m_Names[i]));
            }
        } catch (...) {
            // It is the caller's, in its turn.
            chunk.failure = std::current_exception();
        }
        return chunk;
    }

    const cFileReader& m_Files;
    const std::string& m_Folder;
    const std::vector<std::string>& m_Names;
    std::mutex m_Mutex;  // of all below
    std::condition_variable m_Changed;
    std::vector<cChunk> m_Chunks;
    std::size_t m_Next = 0, m_Taken = 0;
    bool m_Stopped = false;
    std::vector<std::thread> m_Threads;
};

}  // namespace

void ReadAhead(const cFileReader& files, const std::string& folder, const std::vector<std::string>& names,
               const cFileReader::TakeContent& take) {
    cReader(files, folder, names).Deliver(take);
}

}  // namespace vigrel

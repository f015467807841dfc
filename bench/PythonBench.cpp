// The C++ half of compare-python, loaded by it: the texts, and a run of the module's ranker on them.
#include <chrono>
#include <memory>

#include "bench/Contenders.h"

#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace {

std::unique_ptr<Bench::Host> host;
std::string block;

}  // namespace

// Makes the texts that bench_run ranks and answers them, each ended by a zero byte.
EXPORTED const char* bench_texts(int kind, std::size_t count, std::size_t distinct, std::size_t* size)
{
    host.reset();
    host = std::make_unique<Bench::Host>(Bench::AllKinds[kind],
                                         Bench::MakeTexts(Bench::AllKinds[kind], count, distinct));
    block.clear();
    for (const std::string& text : host->texts) {
        block.append(text.c_str(), text.size() + 1);
    }
    *size = block.size();
    return block.data();
}

// The seconds of one run and the length of all its candidates.
EXPORTED double bench_run(std::size_t* length)
{
    const auto begin = std::chrono::steady_clock::now();
    CStringArray candidates;
    Bench::RunRanker(*host, candidates);
    *length = 0;
    for (const CString& text : candidates) {
        *length += text.View().size();
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

#include "archive/solid/frame_reader.h"

#include <algorithm>
#include <new>

namespace quillon {

namespace {

constexpr std::size_t kInputSize = 128 * 1024;
constexpr const char* kTooShort = "innehållet slutar för tidigt";

} // namespace

FrameReader::FrameReader(InputFile& file, const FrameDecoding& decoding, int maxWindowLog,
                         Refuse refuse)
    : file_(file), decoding_(decoding), refuse_(refuse), decoder_(decoding.begin(maxWindowLog)),
      buffer_(kInputSize)
{
    if (decoder_ == nullptr)
        throw std::bad_alloc();
}

FrameReader::~FrameReader()
{
    decoding_.end(decoder_);
}

void FrameReader::Open(std::uint64_t position, std::uint64_t size)
{
    decoding_.reset(decoder_);
    position_ = position;
    left_ = size;
    inputBegin_ = 0;
    inputEnd_ = 0;
    isComplete_ = false;
}

void FrameReader::Refill()
{
    if (inputBegin_ < inputEnd_ || left_ == 0)
        return;
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(left_, buffer_.size()));
    file_.Seek(position_);
    inputBegin_ = 0;
    inputEnd_ = file_.Read(std::span(buffer_).first(wanted));
    if (inputEnd_ == 0)
        refuse_("filen slutar för tidigt");
    position_ += inputEnd_;
    left_ -= inputEnd_;
}

std::size_t FrameReader::Decode(std::span<std::byte> output)
{
    Refill();
    FrameStep step{
        buffer_.data() + inputBegin_, inputEnd_ - inputBegin_, 0, output.data(), output.size(), 0};
    const int state = decoding_.go(decoder_, &step);
    if (state < 0)
        refuse_("innehållet kan ej packas upp");
    inputBegin_ += step.inputUsed;
    isComplete_ = state == static_cast<int>(FrameState::Complete);
    return step.outputUsed;
}

void FrameReader::Read(std::span<std::byte> bytes)
{
    while (!bytes.empty()) {
        const bool hadInput = HasInput();
        const std::size_t done = isComplete_ ? 0 : Decode(bytes);
        if (done == 0 && (isComplete_ || !hadInput))
            refuse_(kTooShort);
        bytes = bytes.subspan(done);
    }
}

void FrameReader::Finish()
{
    while (!isComplete_) {
        const bool hadInput = HasInput();
        std::byte surplus{};
        if (Decode({&surplus, 1}) > 0)
            refuse_("innehållet är längre än det anger");
        if (!hadInput && !isComplete_)
            refuse_(kTooShort);
    }
    if (HasInput())
        refuse_("något ligger bakom innehållet");
}

} // namespace quillon

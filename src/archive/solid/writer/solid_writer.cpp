#include "archive/solid/writer/solid_writer.h"

#include "archive/solid/filtered_run.h"
#include "archive/solid/solid_digest.h"
#include "archive/solid/writer/zstd_result.h"
#include "helpers/closer.h"
#include "platform/run_error.h"

#include <zstd.h>

#include <algorithm>
#include <new>
#include <thread>

namespace quillon {

namespace {

constexpr std::size_t kPieceSize = 1024 * 1024;
constexpr int kLevel = 15;
constexpr int kJobSize = 16 * 1024 * 1024;
// What a job sees of the bytes before it: the window's 16th part, 8 MiB of the largest.
constexpr int kOverlapLog = 5;
constexpr unsigned kMaxWorkers = 8;

/// The way from the sources' bytes to the target, all of which the digest sees.
class SolidOutput {
public:
    SolidOutput(OutputFile& target, const SolidOptions& options)
        : target_(target),
          digest_(options.program.empty() ? std::nullopt : FindSignatureFields(options.program)),
          encoder_(ZSTD_createCCtx()), packed_(ZSTD_CStreamOutSize())
    {
        if (!encoder_)
            throw std::bad_alloc();
        Put(options.program);
    }

    void Begin(std::uint64_t total, unsigned threads)
    {
        const unsigned cores = threads > 0 ? threads : std::thread::hardware_concurrency();
        Set(ZSTD_c_compressionLevel, kLevel);
        Set(ZSTD_c_windowLog, WindowLog(total));
        Set(ZSTD_c_enableLongDistanceMatching, 1);
        Set(ZSTD_c_contentSizeFlag, 1);
        Set(ZSTD_c_nbWorkers, static_cast<int>(std::clamp(cores, 1U, kMaxWorkers)));
        Set(ZSTD_c_jobSize, kJobSize);
        Set(ZSTD_c_overlapLog, kOverlapLog);
        CheckedSize(ZSTD_CCtx_setPledgedSrcSize(encoder_.get(), total));
        streamBegin_ = position_;
    }

    void Pack(std::span<const std::byte> bytes)
    {
        ZSTD_inBuffer input{bytes.data(), bytes.size(), 0};
        while (input.pos < input.size)
            Drain(input, ZSTD_e_continue);
    }

    void Finish(std::uint64_t tableSize)
    {
        ZSTD_inBuffer nothing{nullptr, 0, 0};
        while (Drain(nothing, ZSTD_e_end) > 0) {
        }
        SolidTrailer trailer{.streamBegin = streamBegin_,
                             .streamSize = position_ - streamBegin_,
                             .tableSize = tableSize};
        const std::uint64_t end = position_ + kSolidTrailerSize;
        Put(zip::Bytes(
            static_cast<std::size_t>((kSolidAlignment - end % kSolidAlignment) % kSolidAlignment)));
        zip::Bytes bytes;
        zip::AppendFields(bytes, trailer);
        Put(bytes);
        const Sha256Digest digest = digest_.Finish();
        target_.Write(digest);
    }

private:
    static int WindowLog(std::uint64_t total)
    {
        int log = 20;
        while (log < kMaxSolidWindowLog && (std::uint64_t(1) << log) < total)
            ++log;
        return log;
    }

    void Set(ZSTD_cParameter parameter, int value)
    {
        CheckedSize(ZSTD_CCtx_setParameter(encoder_.get(), parameter, value));
    }

    std::size_t Drain(ZSTD_inBuffer& input, ZSTD_EndDirective directive)
    {
        ZSTD_outBuffer output{packed_.data(), packed_.size(), 0};
        const std::size_t left =
            CheckedSize(ZSTD_compressStream2(encoder_.get(), &output, &input, directive));
        Put(std::span(packed_).first(output.pos));
        return left;
    }

    void Put(std::span<const std::byte> bytes)
    {
        if (bytes.empty())
            return;
        target_.Write(bytes);
        digest_.Add(bytes);
        position_ += bytes.size();
    }

    OutputFile& target_;
    SolidDigest digest_;
    std::unique_ptr<ZSTD_CCtx, Closer<ZSTD_freeCCtx>> encoder_;
    zip::Bytes packed_;
    std::uint64_t position_ = 0;
    std::uint64_t streamBegin_ = 0;
};

class SourcePacker {
public:
    SourcePacker(SolidOutput& output, const SolidOptions& options, std::uint64_t total)
        : output_(output), options_(options), total_(total), buffer_(kPieceSize)
    {
    }

    void Pack(const SolidSource& source)
    {
        const auto input = source.open();
        for (const SolidRun& run : source.file.runs)
            PackRun(source, *input, run);
        std::byte surplus;
        if (input->Read({&surplus, 1}) > 0)
            throw RunError(ErrorNumber::kPastEndOfFile, source.file.name);
    }

private:
    void PackRun(const SolidSource& source, InputFile& input, const SolidRun& run)
    {
        PassThroughFilter(
            run, X86Filter::Direction::Encode, buffer_,
            [&](std::span<std::byte> bytes) {
                ReadFully(source, input, bytes);
                done_ += bytes.size();
            },
            [&](std::span<const std::byte> bytes) {
                output_.Pack(bytes);
                if (options_.onProgress)
                    options_.onProgress(done_, total_);
            });
    }

    static void ReadFully(const SolidSource& source, InputFile& input, std::span<std::byte> bytes)
    {
        while (!bytes.empty()) {
            const std::size_t got = input.Read(bytes);
            if (got == 0)
                throw RunError(ErrorNumber::kPastEndOfFile, source.file.name);
            bytes = bytes.subspan(got);
        }
    }

    SolidOutput& output_;
    const SolidOptions& options_;
    std::uint64_t total_;
    std::uint64_t done_ = 0;
    zip::Bytes buffer_;
};

} // namespace

void WriteSolid(const std::vector<SolidProperty>& properties,
                const std::vector<SolidSource>& sources, OutputFile& target,
                const SolidOptions& options)
{
    SolidTable table{.properties = properties, .files = {}};
    for (const SolidSource& source : sources)
        table.files.push_back(source.file);
    const zip::Bytes tableBytes = SolidTableBytes(table);
    const std::uint64_t total = table.TotalSize();

    SolidOutput output(target, options);
    output.Begin(tableBytes.size() + total, options.threads);
    output.Pack(tableBytes);
    SourcePacker packer(output, options, total);
    for (const SolidSource& source : sources)
        packer.Pack(source);
    output.Finish(tableBytes.size());
}

} // namespace quillon

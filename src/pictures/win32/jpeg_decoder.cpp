// JPEG pictures by the system's imaging component, which Windows has since Vista and XP with its
// third service pack, and Wine too. Its interfaces come through COM, so nothing is linked and no
// library is looked for in the folder of the program. A system without it has no JPEG pictures.
#include "pictures/jpeg_decoder.h"

#include "platform/win32/com_pointer.h"

#include <windows.h>

#include <ocidl.h>
#include <ole2.h>
#include <propidl.h>

// The interfaces of the headers above are in the library of such numbers; only those of the imaging
// component are made here.
#include <initguid.h>
#include <wincodec.h>

namespace quillon {

namespace {

class ComApartment {
public:
    ComApartment() : result_(CoInitialize(nullptr)) {}
    ~ComApartment()
    {
        if (SUCCEEDED(result_))
            CoUninitialize();
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

private:
    // A thread that is in another apartment already is served as well.
    HRESULT result_;
};

bool IsOfSize(IWICBitmapSource& source, const JpegRequest& request)
{
    UINT width = 0;
    UINT height = 0;
    return SUCCEEDED(source.GetSize(&width, &height)) &&
           width == static_cast<UINT>(request.width) && height == static_cast<UINT>(request.height);
}

/// The frame or, in its place, what makes it smaller while it is decoded.
bool Reduce(IWICImagingFactory& factory, IWICBitmapFrameDecode& frame, const Picture& picture,
            int reduction, ComPointer<IWICBitmapScaler>& scaler, IWICBitmapSource*& source)
{
    source = &frame;
    if (reduction == 1)
        return true;
    const bool isReduced = SUCCEEDED(factory.CreateBitmapScaler(scaler.Out())) &&
                           SUCCEEDED(scaler->Initialize(&frame, static_cast<UINT>(picture.width),
                                                        static_cast<UINT>(picture.height),
                                                        WICBitmapInterpolationModeFant));
    source = scaler.Get();
    return isReduced;
}

bool CopyPixels(IWICImagingFactory& factory, IWICBitmapSource& source, Picture& picture)
{
    ComPointer<IWICFormatConverter> converter;
    const auto stride = static_cast<UINT>(picture.width) * UINT{sizeof(Pixel)};
    return SUCCEEDED(factory.CreateFormatConverter(converter.Out())) &&
           SUCCEEDED(converter->Initialize(&source, GUID_WICPixelFormat32bppBGRA,
                                           WICBitmapDitherTypeNone, nullptr, 0,
                                           WICBitmapPaletteTypeCustom)) &&
           SUCCEEDED(converter->CopyPixels(nullptr, stride,
                                           stride * static_cast<UINT>(picture.height),
                                           reinterpret_cast<BYTE*>(picture.pixels.data())));
}

bool Decode(std::string_view bytes, const JpegRequest& request, Picture& picture)
{
    ComPointer<IWICImagingFactory> factory;
    ComPointer<IWICStream> stream;
    ComPointer<IWICBitmapDecoder> decoder;
    ComPointer<IWICBitmapFrameDecode> frame;
    ComPointer<IWICBitmapScaler> scaler;
    IWICBitmapSource* source = nullptr;
    // The stream only reads.
    auto* memory = reinterpret_cast<BYTE*>(const_cast<char*>(bytes.data()));
    return SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IWICImagingFactory, factory.UntypedOut())) &&
           SUCCEEDED(factory->CreateStream(stream.Out())) &&
           SUCCEEDED(stream->InitializeFromMemory(memory, static_cast<DWORD>(bytes.size()))) &&
           SUCCEEDED(factory->CreateDecoderFromStream(
               stream.Get(), nullptr, WICDecodeMetadataCacheOnDemand, decoder.Out())) &&
           SUCCEEDED(decoder->GetFrame(0, frame.Out())) && IsOfSize(*frame.Get(), request) &&
           Reduce(*factory.Get(), *frame.Get(), picture, request.reduction, scaler, source) &&
           CopyPixels(*factory.Get(), *source, picture);
}

} // namespace

Picture DecodeJpegPixels(std::string_view bytes, const JpegRequest& request)
{
    Picture picture = request.MakePicture();
    const ComApartment apartment;
    if (!Decode(bytes, request, picture))
        return {};
    for (Pixel& pixel : picture.pixels)
        pixel |= 0xFF000000;
    return picture;
}

} // namespace quillon

// PNG through the Windows Imaging Component: the first frame converted to
// 32-bit BGRA, which is the word 0xAARRGGBB.

#include "picture/png_decoder.h"

#include <wincodec.h>

#include <limits>

#include "picture/win32/com.h"

namespace vorlex::picture {

namespace {

void Check(HRESULT result) { Require(SUCCEEDED(result)); }

void OpenFirstFrame(IWICImagingFactory* factory, ByteView file, ComRef<IWICStream>& stream,
                    ComRef<IWICBitmapDecoder>& decoder, ComRef<IWICBitmapFrameDecode>& frame) {
  Check(factory->CreateStream(stream.out()));
  Check(stream->InitializeFromMemory(const_cast<BYTE*>(file.data()), static_cast<DWORD>(file.size())));
  Check(factory->CreateDecoder(GUID_ContainerFormatPng, nullptr, decoder.out()));
  Check(decoder->Initialize(stream.get(), WICDecodeMetadataCacheOnDemand));
  Check(decoder->GetFrame(0, frame.out()));
}

}  // namespace

Image DecodePng(ByteView file) {
  Require(file.size() > 0 && file.size() <= std::numeric_limits<DWORD>::max());
  const ComApartment com;
  ComRef<IWICImagingFactory> factory;
  Check(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                           reinterpret_cast<void**>(factory.out())));
  ComRef<IWICStream> stream;
  ComRef<IWICBitmapDecoder> decoder;
  ComRef<IWICBitmapFrameDecode> frame;
  OpenFirstFrame(factory.get(), file, stream, decoder, frame);
  UINT width = 0;
  UINT height = 0;
  Check(frame->GetSize(&width, &height));
  Image image = NewImage(width, height);
  ComRef<IWICBitmapSource> converted;
  Check(::WICConvertBitmapSource(GUID_WICPixelFormat32bppBGRA, frame.get(), converted.out()));
  const UINT stride = width * 4;
  Check(converted->CopyPixels(nullptr, stride, stride * height, reinterpret_cast<BYTE*>(image.pixels.data())));
  SplitAlpha(image);
  return image;
}

}  // namespace vorlex::picture

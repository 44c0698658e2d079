#include "platform/qt/ColourTransform.h"

#include <lcms2.h>

#include "platform/foundation/LoadedLibrary.h"

namespace leafund {

namespace {

// What is used of Little CMS, each as it is named there.
struct Library : LoadedLibrary {
  Library() : LoadedLibrary("liblcms2.so.2") {}

  decltype(&cmsOpenProfileFromMem) openProfileFromMem = function("cmsOpenProfileFromMem");
  decltype(&cmsCloseProfile) closeProfile = function("cmsCloseProfile");
  decltype(&cmsGetColorSpace) getColorSpace = function("cmsGetColorSpace");
  decltype(&cmsCreate_sRGBProfile) createSRgbProfile = function("cmsCreate_sRGBProfile");
  decltype(&cmsCreateRGBProfile) createRgbProfile = function("cmsCreateRGBProfile");
  decltype(&cmsBuildParametricToneCurve) buildToneCurve = function("cmsBuildParametricToneCurve");
  decltype(&cmsFreeToneCurve) freeToneCurve = function("cmsFreeToneCurve");
  decltype(&cmsCreateTransform) createTransform = function("cmsCreateTransform");
  decltype(&cmsDeleteTransform) deleteTransform = function("cmsDeleteTransform");
  decltype(&cmsDoTransform) doTransform = function("cmsDoTransform");
};

using Pixels = ColourTransform::Pixels;

// RGB32 is a number, whose bytes lie by the machine's order. What no format names is left alone.
constexpr cmsUInt32Number kRgb32 = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? TYPE_BGRA_8 : TYPE_ARGB_8;

// How the pixels are read by a profile of that space; 0 when it is not of such pixels.
cmsUInt32Number formatOf(cmsColorSpaceSignature space, Pixels pixels) {
  if (space == cmsSigGrayData && pixels == Pixels::Grey) return TYPE_GRAY_8;
  if (space == cmsSigRgbData && pixels != Pixels::Inks) return kRgb32;
  return space == cmsSigCmykData && pixels == Pixels::Inks ? TYPE_CMYK_8_REV : 0;
}

// From that profile, which it closes; null when that cannot be.
cmsHTRANSFORM transformOf(const Library& lcms, cmsHPROFILE profile, cmsUInt32Number format) {
  cmsHPROFILE shown = lcms.createSRgbProfile();
  cmsHTRANSFORM transform = nullptr;
  if (shown != nullptr && format != 0) {
    // Without its cache, which holds the last pixel, threads may share it. A table of four inks is
    // made anew with so many steps of each: more take a fifth of a second.
    const bool isOfInks = format == TYPE_CMYK_8_REV;
    const int flags = cmsFLAGS_NOCACHE | (isOfInks ? cmsFLAGS_GRIDPOINTS(11) : 0);
    transform = lcms.createTransform(profile, format, shown, kRgb32, INTENT_PERCEPTUAL,
                                     static_cast<cmsUInt32Number>(flags));
  }
  if (shown != nullptr) lcms.closeProfile(shown);
  lcms.closeProfile(profile);
  return transform;
}

cmsHPROFILE profileOf(const Library& lcms, const ColourTransform::Primaries& primaries) {
  const cmsFloat64Number srgb[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
  cmsToneCurve* const curve = primaries.gamma > 0
                                  ? lcms.buildToneCurve(nullptr, 1, &primaries.gamma)
                                  : lcms.buildToneCurve(nullptr, 4, srgb);
  if (curve == nullptr) return nullptr;
  const auto point = [](const auto& at) { return cmsCIExyY{at.x, at.y, 1}; };
  const auto& [red, green, blue] = primaries.lights;
  const cmsCIExyY white = point(primaries.white);
  const cmsCIExyYTRIPLE lights{point(red), point(green), point(blue)};
  cmsToneCurve* curves[] = {curve, curve, curve};
  cmsHPROFILE profile = lcms.createRgbProfile(&white, &lights, curves);
  lcms.freeToneCurve(curve);
  return profile;
}

}  // namespace

ColourTransform::ColourTransform(void* transform, Pixels pixels) : pixels_(pixels) {
  if (transform != nullptr) transform_.reset(transform, loaded<Library>()->deleteTransform);
}

ColourTransform ColourTransform::ofProfile(std::string_view icc, Pixels pixels) {
  const auto library = loaded<Library>();
  const Library& lcms = *library;
  if (!lcms.isThere() || icc.size() > kMostProfileBytes) return {};
  cmsHPROFILE profile =
      lcms.openProfileFromMem(icc.data(), static_cast<cmsUInt32Number>(icc.size()));
  if (profile == nullptr) return {};
  const cmsUInt32Number format = formatOf(lcms.getColorSpace(profile), pixels);
  const bool isOfOneNumber = format == TYPE_GRAY_8;
  if (pixels == Pixels::Grey && !isOfOneNumber) pixels = Pixels::Colours;
  return {transformOf(lcms, profile, format), pixels};
}

ColourTransform ColourTransform::ofPrimaries(const Primaries& primaries) {
  const auto library = loaded<Library>();
  const Library& lcms = *library;
  if (!lcms.isThere()) return {};
  cmsHPROFILE profile = profileOf(lcms, primaries);
  if (profile == nullptr) return {};
  return {transformOf(lcms, profile, kRgb32), Pixels::Colours};
}

void ColourTransform::apply(QRgb* pixels, unsigned count) const {
  if (isNone()) return;
  const auto library = loaded<Library>();
  const Library& lcms = *library;
  if (pixels_ != Pixels::Grey) {
    lcms.doTransform(transform_.get(), pixels, pixels, count);
    if (pixels_ != Pixels::Inks) return;
    for (unsigned at = 0; at < count; ++at) pixels[at] |= 0xFF000000;
    return;
  }
  unsigned char greys[256];
  QRgb shown[256] = {};
  for (unsigned at = 0; at < 256; ++at) greys[at] = static_cast<unsigned char>(at);
  lcms.doTransform(transform_.get(), greys, shown, 256);
  for (unsigned at = 0; at < count; ++at) {
    const QRgb light = shown[qRed(pixels[at])] & 0x00FFFFFF;
    pixels[at] = light | (pixels[at] & 0xFF000000);
  }
}

}  // namespace leafund

#include "virtualdesk/marked.h"
#include "virtualdesk/menus/menus.h"

namespace virtualdesk::menus {

namespace {

constexpr OsdOption kScenes[] = {
    {1, NAME("Standard")},        {3, NAME("CAD/CAM")},      {5, NAME("Animate")},
    {7, NAME("Art Design")},      {9, NAME("Movie")},        {11, NAME("Reading")},
    {13, NAME("Night")},          {15, NAME("Eye Care")},    {17, NAME("Light Programme")},
    {19, NAME("Dark Programme")}, {21, NAME("E-Book")},      {23, NAME("Zelmar")},
    {25, NAME("MPCS/ULL FPS")},   {27, NAME("MPCS/LD")},     {29, NAME("Display P3")},
    {31, NAME("sRGB(2.2)")},      {33, NAME("DCI-P3(D65)")}, {35, NAME("HDTV Video")},
    {37, NAME("NTSC Video")},     {39, NAME("PAL & SECAM")}, {41, NAME("Print(P3-D50)")},
    {43, NAME("Photo(P3-D65)")},  {45, NAME("Web(sRGB)")},   {47, NAME("AdobeRGB")},
    {49, NAME("Native")},         {51, NAME("EBU")},         {53, NAME("SMPTE-C")},
    {55, NAME("Rec.709")},        {57, NAME("DICOM")},       {59, NAME("Paper")},
    {61, NAME("Adobe")},          {63, NAME("sRGB")},        {65, NAME("DCI-P3")},
    {81, NAME("AdobeRGB(D50)")},  {83, NAME("Softproof")},   {85, NAME("Softproof(D55)")},
    {87, NAME("Softproof(D58)")},
};

} // namespace

std::span<const OsdOption> scenes()
{
    return kScenes;
}

} // namespace virtualdesk::menus

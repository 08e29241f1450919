/* gexIP: shared types, status codes and enumerations.
 *
 * Every image operand is a triple: a pointer to the top-left pixel of the
 * region of interest, a row step in BYTES (signed; negative steps walk the
 * image upwards), and the region size that the call gives for all operands.
 * Every operation returns a GexStatus: 0 success, < 0 error (nothing was
 * written), > 0 warning (the results were written).
 */
#ifndef GEXDEFS_H
#define GEXDEFS_H

#ifdef __cplusplus
extern "C" {
#endif

/* ---- element types ---------------------------------------------------- */
typedef unsigned char      Gex8u;
typedef signed char        Gex8s;
typedef unsigned short     Gex16u;
typedef short              Gex16s;
typedef unsigned int       Gex32u;
typedef int                Gex32s;
typedef float              Gex32f;
typedef long long          Gex64s;
typedef unsigned long long Gex64u;
typedef double             Gex64f;
typedef struct { Gex32s re; Gex32s im; } Gex32sc;
typedef struct { Gex32f re; Gex32f im; } Gex32fc;

/* ---- geometry ----------------------------------------------------------- */
typedef struct { int width; int height; } GexiSize;
typedef struct { int x; int y; } GexiPoint;
typedef struct { int x; int y; int width; int height; } GexiRect;
typedef struct { Gex64s width; Gex64s height; } GexiSizeL;
typedef struct { Gex64s x; Gex64s y; } GexiPointL;
typedef struct { Gex64s x; Gex64s y; Gex64s width; Gex64s height; } GexiRectL;
typedef struct {
    Gex32u borderLeft;
    Gex32u borderTop;
    Gex32u borderRight;
    Gex32u borderBottom;
} GexiBorderSize;

/* ---- status ------------------------------------------------------------- */
typedef int GexStatus;

enum {
    /* warnings: the work was done */
    gexStsAccurateModeIgnored = 52,
    gexStsSizeWarn            = 48,
    gexStsNoAntialiasing      = 46,
    gexStsVoiNoIntersect      = 40,
    gexStsNoIntersection      = 30,
    gexStsRoiOutside          = 29,
    gexStsQuadNotParallel     = 28,
    gexStsLnNegArgWarn        = 8,
    gexStsLnZeroArgWarn       = 7,
    gexStsDivByZeroWarn       = 6,
    gexStsSqrtNegArgWarn      = 3,
    gexStsNoOperation         = 1,
    /* success */
    gexStsOk                  = 0,
    /* errors: nothing was written */
    gexStsErr                 = -1,
    gexStsNoSimpleTransform   = -2,
    gexStsBadArg              = -5,
    gexStsSize                = -6,
    gexStsRange               = -7,
    gexStsNullPtr             = -8,
    gexStsMemAlloc            = -9,
    gexStsDivByZero           = -10,
    gexStsOutOfRange          = -11,
    gexStsDataType            = -12,
    gexStsScaleRange          = -13,
    gexStsStep                = -14,
    gexStsFFTOrder            = -15,
    gexStsFFTFlag             = -16,
    gexStsContextMatch        = -17,
    gexStsThreshold           = -18,
    gexStsMomentZero          = -20,
    gexStsMirrorFlip          = -21,
    gexStsInterpolation       = -22,
    gexStsResizeFactor        = -23,
    gexStsMaskSize            = -33,
    gexStsAnchor              = -34,
    gexStsEps                 = -36,
    gexStsStepSmall           = -37,
    gexStsChannelFormat       = -47,
    gexStsAlphaType           = -50,
    gexStsMaskKernelZero      = -51,
    gexStsNumChannels         = -53,
    gexStsCoeff               = -56,
    gexStsRect                = -57,
    gexStsQuad                = -58,
    gexStsChannelOrder        = -60,
    gexStsLUTLevels           = -106,
    gexStsHistogramLevels     = -107,
    gexStsNotEvenStep         = -108,
    gexStsNoiseRange          = -125,
    gexStsQualityIndex        = -210,
    gexStsWeight              = -211,
    gexStsDecimateFilter      = -212,
    gexStsRoundMode           = -213,
    gexStsBorder              = -225,
    gexStsMisalignedOffset    = -227,
    gexStsAlgType             = -228,
    gexStsWarpDirection       = -231,
    gexStsExceededSize        = -232,
    gexStsNotSupportedMode    = -9999
};

/* ---- shared enumerations (all passed as 32-bit ints) -------------------- */

/* Only 2 selects the accurate path; any other value selects the fast one. */
typedef enum {
    gexAlgHintNone     = 0,
    gexAlgHintFast     = 1,
    gexAlgHintAccurate = 2
} GexHintAlgorithm;

typedef enum {
    gex8u  = 1,
    gex16u = 5,
    gex16s = 7,
    gex32f = 13,
    gex64f = 19
} GexDataType;

typedef enum {
    gexRndZero = 0, /* toward zero */
    gexRndNear = 1, /* to nearest, ties to even */
    gexRndFin  = 2  /* to nearest, ties away from zero */
} GexRoundMode;

typedef enum {
    gexCmpLess      = 0,
    gexCmpLessEq    = 1,
    gexCmpEq        = 2,
    gexCmpGreaterEq = 3,
    gexCmpGreater   = 4
} GexCmpOp;

/* A mode in bits 0..3, in-memory flags in bits 4..7. */
typedef enum {
    gexBorderRepl        = 1,
    gexBorderMirror      = 3,
    gexBorderMirrorR     = 4,
    gexBorderConst       = 6,
    gexBorderTransp      = 7,
    gexBorderInMemTop    = 16,
    gexBorderInMemBottom = 32,
    gexBorderInMemLeft   = 64,
    gexBorderInMemRight  = 128,
    gexBorderInMem       = 240
} GexiBorderType;

/* Two decimal digits: width, then height. */
typedef enum {
    gexMskSize1x3 = 13,
    gexMskSize1x5 = 15,
    gexMskSize3x1 = 31,
    gexMskSize5x1 = 51,
    gexMskSize3x3 = 33,
    gexMskSize5x5 = 55
} GexiMaskSize;

typedef enum {
    gexiInterNearest      = 1,
    gexiInterLinear       = 2,
    gexiInterCubic        = 4,
    gexiInterCubicBSpline = 5,
    gexiInterCubic2P      = 6,
    gexiInterCubicB05C03  = 7,
    gexiInterSuper        = 8,
    gexiInterLanczos      = 16
} GexiInterpolation;

typedef enum {
    gexAxsHorizontal = 0, /* top and bottom rows exchanged */
    gexAxsVertical   = 1, /* left and right exchanged */
    gexAxsBoth       = 2,
    gexAxs45         = 3, /* main diagonal */
    gexAxs135        = 4  /* the other diagonal */
} GexiAxis;

/* ---- version record ----------------------------------------------------- */
typedef struct {
    int         major;
    int         minor;
    int         update;
    int         build;
    char        targetCpu[4];
    const char* name;
    const char* version;
    const char* buildDate;
} GexLibraryVersion;

#ifdef __cplusplus
}
#endif

#endif /* GEXDEFS_H */

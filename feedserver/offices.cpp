// The forecast offices. Source: office list of the National Weather Service.
#include <array>

#include "feedserver/sites.h"

namespace skyloft::feed {
namespace {

constexpr auto kOffices = std::to_array<Office>({
    {"ABQ", {35.036, -106.623}},   // Albuquerque NM
    {"ABR", {45.456, -98.413}},    // Aberdeen SD
    {"AFC", {61.156, -149.985}},   // Anchorage AK
    {"AFG", {64.859, -147.835}},   // Fairbanks AK
    {"AJK", {58.361, -134.578}},   // Juneau AK
    {"AKQ", {36.984, -77.008}},    // Wakefield VA
    {"ALY", {42.692, -73.831}},    // Albany NY
    {"AMA", {35.233, -101.709}},   // Amarillo TX
    {"APX", {44.906, -84.720}},    // Gaylord MI
    {"ARX", {43.823, -91.191}},    // La Crosse WI
    {"BGM", {42.212, -75.985}},    // Binghamton NY
    {"BIS", {46.771, -100.761}},   // Bismarck ND
    {"BMX", {33.180, -86.782}},    // Birmingham AL
    {"BOI", {43.567, -116.211}},   // Boise ID
    {"BOU", {39.992, -105.261}},   // Boulder CO
    {"BOX", {41.956, -71.137}},    // Boston MA
    {"BRO", {25.916, -97.419}},    // Brownsville TX
    {"BTV", {44.469, -73.155}},    // Burlington VT
    {"BUF", {42.941, -78.719}},    // Buffalo NY
    {"BYZ", {45.751, -108.571}},   // Billings MT
    {"CAE", {33.949, -81.119}},    // Columbia SC
    {"CAR", {46.868, -68.014}},    // Caribou ME
    {"CHS", {32.895, -80.028}},    // Charleston SC
    {"CLE", {41.413, -81.860}},    // Cleveland OH
    {"CRP", {27.779, -97.506}},    // Corpus Christi TX
    {"CTP", {40.792, -77.872}},    // State College PA
    {"CYS", {41.152, -104.806}},   // Cheyenne WY
    {"DDC", {37.761, -99.969}},    // Dodge City KS
    {"DLH", {46.837, -92.210}},    // Duluth MN
    {"DMX", {41.736, -93.723}},    // Des Moines IA
    {"DTX", {42.700, -83.472}},    // Detroit MI
    {"DVN", {41.612, -90.581}},    // Davenport IA
    {"EAX", {38.810, -94.264}},    // Kansas City MO
    {"EKA", {40.810, -124.160}},   // Eureka CA
    {"EPZ", {31.873, -106.698}},   // El Paso TX
    {"EWX", {29.704, -98.029}},    // San Antonio TX
    {"FFC", {33.363, -84.566}},    // Atlanta GA
    {"FGF", {47.922, -97.098}},    // Grand Forks ND
    {"FGZ", {35.230, -111.822}},   // Flagstaff AZ
    {"FSD", {43.588, -96.729}},    // Sioux Falls SD
    {"FWD", {32.835, -97.298}},    // Fort Worth TX
    {"GGW", {48.206, -106.625}},   // Glasgow MT
    {"GID", {40.647, -98.384}},    // Hastings NE
    {"GJT", {39.120, -108.525}},   // Grand Junction CO
    {"GLD", {39.367, -101.700}},   // Goodland KS
    {"GRB", {44.499, -88.111}},    // Green Bay WI
    {"GRR", {42.894, -85.545}},    // Grand Rapids MI
    {"GSP", {34.883, -82.220}},    // Greer SC
    {"GUM", {13.477, 144.797}},    // Tiyan GU
    {"GYX", {43.891, -70.256}},    // Gray ME
    {"HFO", {21.298, -157.817}},   // Honolulu HI
    {"HGX", {29.472, -95.079}},    // Houston TX
    {"HNX", {36.314, -119.632}},   // Hanford CA
    {"HUN", {34.724, -86.646}},    // Huntsville AL
    {"ICT", {37.654, -97.443}},    // Wichita KS
    {"ILM", {34.276, -77.912}},    // Wilmington NC
    {"ILN", {39.420, -83.822}},    // Wilmington OH
    {"ILX", {40.150, -89.337}},    // Lincoln IL
    {"IND", {39.708, -86.280}},    // Indianapolis IN
    {"IWX", {41.359, -85.700}},    // Northern Indiana IN
    {"JAN", {32.318, -90.080}},    // Jackson MS
    {"JAX", {30.485, -81.702}},    // Jacksonville FL
    {"JKL", {37.591, -83.313}},    // Jackson KY
    {"KEY", {24.553, -81.789}},    // Key West FL
    {"LBF", {41.134, -100.700}},   // North Platte NE
    {"LCH", {30.125, -93.216}},    // Lake Charles LA
    {"LIX", {30.337, -89.826}},    // New Orleans LA
    {"LKN", {40.861, -115.743}},   // Elko NV
    {"LMK", {38.115, -85.645}},    // Louisville KY
    {"LOT", {41.604, -88.085}},    // Chicago IL
    {"LOX", {34.206, -119.137}},   // Oxnard CA
    {"LSX", {38.699, -90.683}},    // St. Louis MO
    {"LUB", {33.528, -101.877}},   // Lubbock TX
    {"LWX", {38.976, -77.487}},    // Sterling VA
    {"LZK", {34.836, -92.262}},    // Little Rock AR
    {"MAF", {31.943, -102.189}},   // Midland TX
    {"MEG", {35.131, -89.803}},    // Memphis TN
    {"MFL", {25.754, -80.383}},    // Miami FL
    {"MFR", {42.377, -122.882}},   // Medford OR
    {"MHX", {34.776, -76.876}},    // Newport NC
    {"MKX", {42.968, -88.551}},    // Milwaukee WI
    {"MLB", {28.113, -80.654}},    // Melbourne FL
    {"MOB", {30.679, -88.240}},    // Mobile AL
    {"MPX", {44.849, -93.565}},    // Minneapolis MN
    {"MQT", {46.531, -87.548}},    // Marquette MI
    {"MRX", {36.168, -83.402}},    // Morristown TN
    {"MSO", {46.925, -114.093}},   // Missoula MT
    {"MTR", {36.593, -121.856}},   // Monterey CA
    {"OAX", {41.320, -96.367}},    // Omaha NE
    {"OHX", {36.247, -86.563}},    // Nashville TN
    {"OKX", {40.866, -72.864}},    // New York NY
    {"OTX", {47.680, -117.627}},   // Spokane WA
    {"OUN", {35.181, -97.440}},    // Norman OK
    {"PAH", {37.068, -88.772}},    // Paducah KY
    {"PBZ", {40.532, -80.218}},    // Pittsburgh PA
    {"PDT", {45.691, -118.853}},   // Pendleton OR
    {"PHI", {40.013, -74.817}},    // Mount Holly NJ
    {"PIH", {42.910, -112.596}},   // Pocatello ID
    {"PPG", {-14.331, -170.714}},  // Pago Pago AS
    {"PQR", {45.561, -122.538}},   // Portland OR
    {"PSR", {33.434, -111.951}},   // Phoenix AZ
    {"PUB", {38.290, -104.528}},   // Pueblo CO
    {"RAH", {35.771, -78.680}},    // Raleigh NC
    {"REV", {39.568, -119.796}},   // Reno NV
    {"RIW", {43.066, -108.477}},   // Riverton WY
    {"RLX", {38.311, -81.723}},    // Charleston WV
    {"RNK", {37.204, -80.414}},    // Blacksburg VA
    {"SEW", {47.687, -122.255}},   // Seattle WA
    {"SGF", {37.235, -93.400}},    // Springfield MO
    {"SGX", {32.997, -117.086}},   // San Diego CA
    {"SHV", {32.451, -93.841}},    // Shreveport LA
    {"SJT", {31.371, -100.493}},   // San Angelo TX
    {"SJU", {18.431, -65.992}},    // San Juan PR
    {"SLC", {40.772, -111.955}},   // Salt Lake City UT
    {"STO", {38.601, -121.502}},   // Sacramento CA
    {"TAE", {30.446, -84.300}},    // Tallahassee FL
    {"TBW", {27.706, -82.402}},    // Tampa FL
    {"TFX", {47.460, -111.385}},   // Great Falls MT
    {"TOP", {39.072, -95.630}},    // Topeka KS
    {"TSA", {36.147, -95.860}},    // Tulsa OK
    {"TWC", {32.228, -110.954}},   // Tucson AZ
    {"UNR", {44.073, -103.210}},   // Rapid City SD
    {"VEF", {36.047, -115.185}},   // Las Vegas NV
});

}  // namespace

std::span<const Office> Offices() { return kOffices; }

}  // namespace skyloft::feed

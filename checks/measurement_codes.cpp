#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode codes[] = {
    {"not-in-kelvin", Level::warning, "not a temperature in K",
     "A melting point below 1 K is that of no substance; mostly degrees Celsius were meant.",
     "_chemical_melting_point -20\n", "_chemical_melting_point 253\n"},
    {"r-factor-above-1", Level::warning, "the R factor is above 1",
     "R factors are given as fractions, not as percentages.", "_refine_ls_R_factor_gt 4.5\n",
     "_refine_ls_R_factor_gt 0.045\n"},
    {"temperature-in-celsius", Level::warning, "the temperature is not in K",
     "A temperature of the cell or the measurement has a C for Celsius behind it, is below 0, or "
     "is 273 K less than the other of the two.",
     "_diffrn_ambient_temperature -173\n", "_diffrn_ambient_temperature 20(2)\n"},
    {"temperature-unclear", Level::note, "the temperature is not a number of K",
     "There is a number, but more beside it, so that programs cannot read it. A K behind the "
     "number can be left out; 'not measured' says what it says.",
     "_diffrn_ambient_temperature 293(2)K\n", "_diffrn_ambient_temperature 'not measured'\n"},
    {"cell-temperature-differs", Level::warning,
     "the cell was measured at another temperature than the intensities",
     "The two are more than 5 K and three standard uncertainties of the difference apart, and not "
     "both between 285 and 305 K. Bonds calculated with such a cell are too long or too short.",
     "_cell_measurement_temperature 293(2)\n_diffrn_ambient_temperature 173(2)\n",
     "_cell_measurement_temperature 293(2)\n_diffrn_ambient_temperature 299(2)\n"},
    {"melting-point-in-celsius", Level::warning, "the melting point is not in K",
     "The melting point has a C for Celsius behind it, or is more than 5 K below the temperature "
     "of the measurement, at which the crystal was solid.",
     "_chemical_melting_point '110-112'\n_diffrn_ambient_temperature 293(2)\n",
     "_chemical_melting_point '230-232'\n_diffrn_ambient_temperature 173(2)\n"},
    {"wavelength-of-other-radiation", Level::warning,
     "the wavelength is not that of the radiation that is named",
     "The wavelength is compared with the alpha lines, from the first to the second, and the "
     "beta line of the element that the type of radiation names. 0.0006 \xC3\x85 and half a unit "
     "of the last place are allowed.",
     "_diffrn_radiation_type MoK\\a\n_diffrn_radiation_wavelength 1.54178\n",
     "_diffrn_radiation_type MoK\\a\n_diffrn_radiation_wavelength 0.7093\n"},
    {"unknown-wavelength", Level::warning, "no X-ray tube has this wavelength",
     "The wavelength, in \xC3\x85, is that of no line of an X-ray tube, and no other source, such "
     "as a synchrotron, a reactor or a beam of electrons, is named.",
     "_diffrn_radiation_wavelength 0.77103\n",
     "_diffrn_radiation_wavelength 0.77103\n_diffrn_radiation_source synchrotron\n"},
    {"theta-above-90", Level::warning, "theta is above 90 degrees",
     "Theta is half of the angle between the beams; 2 theta was meant.",
     "_diffrn_reflns_theta_max 136.2\n", "_diffrn_reflns_theta_max 68.1\n"},
    {"theta-reversed", Level::warning, "the least theta is above the greatest",
     "Minimum and maximum are compared, of the intensities and of the cell's reflections.",
     "_diffrn_reflns_theta_min 27.5\n_diffrn_reflns_theta_max 2.5\n",
     "_diffrn_reflns_theta_min 27.5\n_diffrn_reflns_theta_max 27.5\n"},
    {"crystal-size-reversed", Level::note, "the sizes of the crystal are not in order",
     "The greatest, middle and least size are compared.",
     "_exptl_crystal_size_max 0.1\n_exptl_crystal_size_mid 0.2\n_exptl_crystal_size_min 0.1\n",
     "_exptl_crystal_size_max 0.2\n_exptl_crystal_size_mid 0.2\n_exptl_crystal_size_min 0.1\n"},
    {"transmission-reversed", Level::warning, "the least transmission is above the greatest",
     "Minimum and maximum of the transmission are compared.",
     "_exptl_absorpt_correction_T_min 0.95\n_exptl_absorpt_correction_T_max 0.85\n",
     "_exptl_absorpt_correction_T_min 0.85\n_exptl_absorpt_correction_T_max 0.95\n"},
    {"transmission-beyond-1", Level::warning, "a transmission is not between 0 and 1",
     "Transmission is the part of the intensity that is left, not a percentage. Factors that were "
     "refined on F, as the type of the correction says, need not be that part.",
     "_exptl_absorpt_correction_T_max 98.2\n",
     "_exptl_absorpt_correction_type refdelf\n_exptl_absorpt_correction_T_max 1.202\n"},
    {"more-independent-than-measured", Level::warning,
     "there are more independent reflections than were measured",
     "Equivalent reflections are merged, so that their number goes down. Powder patterns are not "
     "looked at.",
     "_diffrn_reflns_number 1842\n_reflns_number_total 4210\n",
     "_diffrn_reflns_number 1842\n_reflns_number_total 1842\n"},
    {"more-observed-than-independent", Level::warning,
     "there are more observed reflections than independent ones",
     "Observed reflections are those of the independent ones that are strong enough.",
     "_reflns_number_total 1842\n_reflns_number_gt 2842\n",
     "_reflns_number_total 1842\n_reflns_number_gt 1842\n"},
    {"r-factor-negative", Level::warning, "an R factor is below 0",
     "R factors are sums of absolute values over others.", "_refine_ls_R_factor_gt -0.045\n",
     "_refine_ls_R_factor_gt 0.045\n"},
    {"r-factors-reversed", Level::note,
     "the R factor of the observed reflections is above that of all",
     "Weak reflections, which are left out of the first, agree worse.",
     "_refine_ls_R_factor_gt 0.082\n_refine_ls_R_factor_all 0.045\n",
     "_refine_ls_R_factor_gt 0.045\n_refine_ls_R_factor_all 0.045\n"},
    {"wr-below-r", Level::note, "the weighted R factor is below the other",
     "Refined on F squared, the weighted R factor is about twice as large as the one of the "
     "amplitudes; they may have been confused.",
     "_refine_ls_structure_factor_coef Fsqd\n_refine_ls_R_factor_gt 0.121\n"
     "_refine_ls_wR_factor_ref 0.045\n",
     "_refine_ls_structure_factor_coef F\n_refine_ls_R_factor_gt 0.050\n"
     "_refine_ls_wR_factor_ref 0.045\n"},
    {"goodness-of-fit-unlikely", Level::warning, "the goodness of fit is far from 1",
     "It is 1 where the weights are right. Below 0.3 and above 10, which only powder patterns "
     "reach, another number was written.",
     "_refine_ls_goodness_of_fit_ref 107.3\n", "_refine_ls_goodness_of_fit_ref 2.014\n"},
};

}  // namespace

std::span<const CheckCode> measurement_codes() { return codes; }

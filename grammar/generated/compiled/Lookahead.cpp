// Written by grammar/compile_grammar.py from grammar/Cypher.g4; not to be edited.
#include "antlr/Lookahead.h"

#include <Token.h>
#include <TokenStream.h>

namespace vorn {

std::size_t lookaheadAlternative(std::size_t decision, antlr4::TokenStream& tokens) {
  switch (decision) {
    case 2:  // oC_Cypher
      switch (tokens.LA(1)) {
        case antlr4::Token::EOF:
          return 2;
        case 1:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case antlr4::Token::EOF:
              return 2;
            case 1:
              return 1;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 4:  // oC_Query
      switch (tokens.LA(1)) {
        case 48: case 49: case 50: case 52: case 54: case 55: case 56: case 57: case 58: case 61:
        case 62:
          return 1;
        case 59:
          switch (tokens.LA(2)) {
            case 127:
              switch (tokens.LA(3)) {
                case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123:
                case 126:
                  switch (tokens.LA(4)) {
                    case 6: case 23: case 127:
                      return 0;
                    default:
                      return 2;
                  }
                default:
                  return 0;
              }
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 6:  // oC_RegularQuery
      switch (tokens.LA(1)) {
        case 46:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 46:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 9:  // oC_Union
      switch (tokens.LA(1)) {
        case 46:
          switch (tokens.LA(2)) {
            case 48: case 49: case 50: case 52: case 54: case 55: case 56: case 57: case 58:
            case 59: case 61: case 62:
              return 2;
            case 127:
              switch (tokens.LA(3)) {
                case 47:
                  return 1;
                case 48: case 49: case 50: case 52: case 54: case 55: case 56: case 57: case 58:
                case 59: case 61: case 62:
                  return 2;
                default:
                  return 0;
              }
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 10:  // oC_SingleQuery
      switch (tokens.LA(1)) {
        case 57:
          switch (tokens.LA(2)) {
            case 26:
              switch (tokens.LA(3)) {
                case 85: case 91: case 92: case 93: case 98: case 100: case 121: case 122: case 123:
                case 126:
                  switch (tokens.LA(4)) {
                    case 2: case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16:
                    case 17: case 18: case 19: case 20: case 21: case 22: case 23: case 52: case 54:
                    case 55: case 56: case 57: case 58: case 127:
                      return 0;
                    case 61:
                      return 2;
                    default:
                      return 1;
                  }
                default:
                  return 0;
              }
            case 84: case 95: case 96: case 97: case 98: case 99: case 107: case 108: case 109:
              switch (tokens.LA(3)) {
                case 2: case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16:
                case 17: case 18: case 19: case 20: case 21: case 22: case 23: case 52: case 54:
                case 55: case 56: case 57: case 58: case 127:
                  return 0;
                case 61:
                  return 2;
                default:
                  return 1;
              }
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
              switch (tokens.LA(3)) {
                case 2: case 3: case 5: case 6: case 8: case 10: case 13: case 14: case 15: case 16:
                case 17: case 18: case 19: case 20: case 21: case 22: case 23: case 52: case 54:
                case 55: case 56: case 57: case 58: case 127:
                  return 0;
                case 61:
                  return 2;
                default:
                  return 1;
              }
            default:
              return 0;
          }
        case 61:
          return 2;
        case 62:
          return 1;
        default:
          return 0;
      }
    case 16:  // oC_SinglePartQuery
      switch (tokens.LA(1)) {
        case 52: case 54: case 55: case 56: case 57: case 58:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 52: case 54: case 55: case 56: case 57: case 58:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 18:  // oC_SinglePartQuery
      switch (tokens.LA(1)) {
        case 62:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 62:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 19:  // oC_SinglePartQuery
      switch (tokens.LA(1)) {
        case 52: case 54: case 55: case 56: case 57: case 58:
          return 2;
        case 62:
          return 1;
        default:
          return 0;
      }
    case 25:  // oC_MultiPartQuery
      switch (tokens.LA(1)) {
        case 57:
          switch (tokens.LA(2)) {
            case 26:
              switch (tokens.LA(3)) {
                case 85: case 91: case 92: case 93: case 98: case 100: case 121: case 122: case 123:
                case 126:
                  switch (tokens.LA(4)) {
                    case 2: case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16:
                    case 17: case 18: case 19: case 20: case 21: case 22: case 23: case 52: case 54:
                    case 55: case 56: case 57: case 58: case 127:
                      return 0;
                    case 61:
                      return 1;
                    default:
                      return 2;
                  }
                default:
                  return 0;
              }
            case 84: case 95: case 96: case 97: case 98: case 99: case 107: case 108: case 109:
              switch (tokens.LA(3)) {
                case 2: case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16:
                case 17: case 18: case 19: case 20: case 21: case 22: case 23: case 52: case 54:
                case 55: case 56: case 57: case 58: case 127:
                  return 0;
                case 61:
                  return 1;
                default:
                  return 2;
              }
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
              switch (tokens.LA(3)) {
                case 2: case 3: case 5: case 6: case 8: case 10: case 13: case 14: case 15: case 16:
                case 17: case 18: case 19: case 20: case 21: case 22: case 23: case 52: case 54:
                case 55: case 56: case 57: case 58: case 127:
                  return 0;
                case 61:
                  return 1;
                default:
                  return 2;
              }
            default:
              return 0;
          }
        case 61:
          return 1;
        case 62:
          return 2;
        default:
          return 0;
      }
    case 31:  // oC_Match
      switch (tokens.LA(1)) {
        case 72:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 72:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 34:  // oC_Merge
      switch (tokens.LA(1)) {
        case 127:
          switch (tokens.LA(2)) {
            case 53:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 35:  // oC_MergeAction
      switch (tokens.LA(1)) {
        case 53:
          switch (tokens.LA(2)) {
            case 127:
              switch (tokens.LA(3)) {
                case 49:
                  return 1;
                case 54:
                  return 2;
                default:
                  return 0;
              }
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 40:  // oC_Set
      switch (tokens.LA(1)) {
        case 2:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 2:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 48:  // oC_SetItem
      switch (tokens.LA(1)) {
        case 6: case 8: case 24: case 26: case 47: case 84: case 86: case 94: case 95: case 96:
        case 97: case 98: case 99: case 107: case 108: case 109:
          return 1;
        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
          switch (tokens.LA(2)) {
            case 3:
              return 2;
            case 4:
              return 3;
            case 6: case 23:
              return 1;
            case 10:
              return 4;
            case 127:
              switch (tokens.LA(3)) {
                case 3:
                  return 2;
                case 4:
                  return 3;
                case 6: case 23:
                  return 1;
                case 10:
                  return 4;
                default:
                  return 0;
              }
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 53:  // oC_Delete
      switch (tokens.LA(1)) {
        case 2:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 2:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 56:  // oC_Remove
      switch (tokens.LA(1)) {
        case 2:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 2:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 57:  // oC_RemoveItem
      switch (tokens.LA(1)) {
        case 6: case 8: case 24: case 26: case 47: case 84: case 86: case 94: case 95: case 96:
        case 97: case 98: case 99: case 107: case 108: case 109:
          return 2;
        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
          switch (tokens.LA(2)) {
            case 6: case 23: case 127:
              return 2;
            case 10:
              return 1;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 59:  // oC_InQueryCall
      switch (tokens.LA(1)) {
        case 60:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 60:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 60:  // oC_StandaloneCall
      switch (tokens.LA(1)) {
        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
          switch (tokens.LA(2)) {
            case 6:
              return 1;
            case 23:
              switch (tokens.LA(3)) {
                case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123:
                case 126:
                  switch (tokens.LA(4)) {
                    case 6:
                      return 1;
                    case 23:
                      switch (tokens.LA(5)) {
                        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123:
                        case 126:
                          switch (tokens.LA(6)) {
                            case 6:
                              return 1;
                            case 23:
                              return 0;
                            case 127:
                              switch (tokens.LA(7)) {
                                case 6:
                                  return 1;
                                default:
                                  return 2;
                              }
                            default:
                              return 2;
                          }
                        default:
                          return 0;
                      }
                    case 127:
                      switch (tokens.LA(5)) {
                        case 6:
                          return 1;
                        default:
                          return 2;
                      }
                    default:
                      return 2;
                  }
                default:
                  return 0;
              }
            case 127:
              switch (tokens.LA(3)) {
                case 6:
                  return 1;
                default:
                  return 2;
              }
            default:
              return 2;
          }
        default:
          return 0;
      }
    case 63:  // oC_StandaloneCall
      switch (tokens.LA(1)) {
        case 60:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 60:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 66:  // oC_YieldItems
      switch (tokens.LA(1)) {
        case 2:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 2:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 68:  // oC_YieldItems
      switch (tokens.LA(1)) {
        case 72:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 72:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 69:  // oC_YieldItem
      switch (tokens.LA(1)) {
        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
          switch (tokens.LA(2)) {
            case 127:
              switch (tokens.LA(3)) {
                case 51:
                  return 1;
                default:
                  return 2;
              }
            default:
              return 2;
          }
        default:
          return 0;
      }
    case 71:  // oC_With
      switch (tokens.LA(1)) {
        case 72:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 72:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 73:  // oC_ProjectionBody
      switch (tokens.LA(1)) {
        case 63:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 5: case 6: case 8: case 18: case 19: case 24: case 26: case 47: case 78: case 84:
            case 85: case 86: case 91: case 92: case 93: case 94: case 95: case 96: case 97:
            case 98: case 99: case 100: case 107: case 108: case 109: case 121: case 122: case 123:
            case 126:
              return 2;
            case 63:
              return 1;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 74:  // oC_ProjectionBody
      switch (tokens.LA(1)) {
        case 127:
          switch (tokens.LA(2)) {
            case 64:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 75:  // oC_ProjectionBody
      switch (tokens.LA(1)) {
        case 127:
          switch (tokens.LA(2)) {
            case 66:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 76:  // oC_ProjectionBody
      switch (tokens.LA(1)) {
        case 127:
          switch (tokens.LA(2)) {
            case 67:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 79:  // oC_ProjectionItems
      switch (tokens.LA(1)) {
        case 2:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 2:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 82:  // oC_ProjectionItems
      switch (tokens.LA(1)) {
        case 2:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 2:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 84:  // oC_ProjectionItem
      switch (tokens.LA(1)) {
        case 8:
          switch (tokens.LA(2)) {
            case 9:
              switch (tokens.LA(3)) {
                case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16: case 17:
                case 18: case 19: case 20: case 21: case 22: case 23: case 127:
                  return 0;
                default:
                  return 2;
              }
            default:
              return 0;
          }
        case 18: case 19: case 78:
          switch (tokens.LA(2)) {
            case 26:
              switch (tokens.LA(3)) {
                case 85: case 91: case 92: case 93: case 98: case 100: case 121: case 122: case 123:
                case 126:
                  switch (tokens.LA(4)) {
                    case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16: case 17:
                    case 18: case 19: case 20: case 21: case 22: case 23: case 127:
                      return 0;
                    default:
                      return 2;
                  }
                default:
                  return 0;
              }
            case 84: case 95: case 96: case 97: case 98: case 99: case 107: case 108: case 109:
              switch (tokens.LA(3)) {
                case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16: case 17:
                case 18: case 19: case 20: case 21: case 22: case 23: case 127:
                  return 0;
                default:
                  return 2;
              }
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
              switch (tokens.LA(3)) {
                case 3: case 5: case 6: case 8: case 10: case 13: case 14: case 15: case 16:
                case 17: case 18: case 19: case 20: case 21: case 22: case 23: case 127:
                  return 0;
                default:
                  return 2;
              }
            default:
              return 0;
          }
        case 24:
          switch (tokens.LA(2)) {
            case 25:
              switch (tokens.LA(3)) {
                case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16: case 17:
                case 18: case 19: case 20: case 21: case 22: case 23: case 127:
                  return 0;
                default:
                  return 2;
              }
            default:
              return 0;
          }
        case 26:
          switch (tokens.LA(2)) {
            case 85: case 91: case 92: case 93: case 98: case 100: case 121: case 122: case 123:
            case 126:
              switch (tokens.LA(3)) {
                case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16: case 17:
                case 18: case 19: case 20: case 21: case 22: case 23: case 127:
                  return 0;
                default:
                  return 2;
              }
            default:
              return 0;
          }
        case 84: case 95: case 96: case 97: case 98: case 99: case 107: case 108: case 109:
          switch (tokens.LA(2)) {
            case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16: case 17: case 18:
            case 19: case 20: case 21: case 22: case 23:
              return 0;
            case 127:
              switch (tokens.LA(3)) {
                case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16: case 17:
                case 18: case 19: case 20: case 21: case 22: case 23: case 75: case 76: case 77:
                case 79: case 80: case 81: case 82: case 83:
                  return 0;
                case 51:
                  return 1;
                default:
                  return 2;
              }
            default:
              return 2;
          }
        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
          switch (tokens.LA(2)) {
            case 3: case 5: case 6: case 8: case 10: case 13: case 14: case 15: case 16: case 17:
            case 18: case 19: case 20: case 21: case 22: case 23:
              return 0;
            case 127:
              switch (tokens.LA(3)) {
                case 3: case 5: case 6: case 8: case 10: case 13: case 14: case 15: case 16:
                case 17: case 18: case 19: case 20: case 21: case 22: case 23: case 75: case 76:
                case 77: case 79: case 80: case 81: case 82: case 83:
                  return 0;
                case 51:
                  return 1;
                default:
                  return 2;
              }
            default:
              return 2;
          }
        default:
          return 0;
      }
    case 88:  // oC_SortItem
      switch (tokens.LA(1)) {
        case 68: case 69: case 70: case 71:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 68: case 69: case 70: case 71:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 91:  // oC_Pattern
      switch (tokens.LA(1)) {
        case 2:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 2:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 104:  // oC_PatternElement
      switch (tokens.LA(1)) {
        case 14: case 19: case 27: case 28: case 29: case 30: case 35: case 36: case 37: case 38:
        case 39: case 40: case 41: case 42: case 43: case 44: case 45:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 14: case 19: case 27: case 28: case 29: case 30: case 35: case 36: case 37:
            case 38: case 39: case 40: case 41: case 42: case 43: case 44: case 45:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 105:  // oC_PatternElement
      switch (tokens.LA(1)) {
        case 6:
          switch (tokens.LA(2)) {
            case 6:
              return 2;
            case 7: case 10: case 24: case 26: case 85: case 91: case 92: case 93: case 100:
            case 121: case 122: case 123: case 126: case 127:
              return 1;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 107:  // oC_RelationshipsPattern
      switch (tokens.LA(1)) {
        case 14:
          switch (tokens.LA(2)) {
            case 19:
              switch (tokens.LA(3)) {
                case 8:
                  switch (tokens.LA(4)) {
                    case 5: case 10:
                      return 1;
                    case 9: case 24: case 26: case 85: case 91: case 92: case 93: case 100:
                    case 121: case 122: case 123: case 126: case 127:
                      return 0;
                    default:
                      return 2;
                  }
                case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42:
                case 43: case 44: case 45:
                  return 1;
                case 127:
                  switch (tokens.LA(4)) {
                    case 8:
                      switch (tokens.LA(5)) {
                        case 5: case 10:
                          return 1;
                        case 9: case 24: case 26: case 85: case 91: case 92: case 93: case 100:
                        case 121: case 122: case 123: case 126: case 127:
                          return 0;
                        default:
                          return 2;
                      }
                    case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42:
                    case 43: case 44: case 45: case 127:
                      return 1;
                    default:
                      return 2;
                  }
                default:
                  return 2;
              }
            case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42: case 43:
            case 44: case 45:
              return 1;
            case 127:
              switch (tokens.LA(3)) {
                case 19:
                  switch (tokens.LA(4)) {
                    case 8:
                      switch (tokens.LA(5)) {
                        case 5: case 10:
                          return 1;
                        case 9: case 24: case 26: case 85: case 91: case 92: case 93: case 100:
                        case 121: case 122: case 123: case 126: case 127:
                          return 0;
                        default:
                          return 2;
                      }
                    case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42:
                    case 43: case 44: case 45:
                      return 1;
                    case 127:
                      switch (tokens.LA(5)) {
                        case 8:
                          switch (tokens.LA(6)) {
                            case 5: case 10:
                              return 1;
                            case 9: case 24: case 26: case 85: case 91: case 92: case 93: case 100:
                            case 121: case 122: case 123: case 126: case 127:
                              return 0;
                            default:
                              return 2;
                          }
                        case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41:
                        case 42: case 43: case 44: case 45: case 127:
                          return 1;
                        default:
                          return 2;
                      }
                    default:
                      return 2;
                  }
                case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42: case 43:
                case 44: case 45:
                  return 1;
                default:
                  return 2;
              }
            default:
              return 2;
          }
        case 19:
          switch (tokens.LA(2)) {
            case 8:
              switch (tokens.LA(3)) {
                case 5: case 10:
                  return 1;
                case 9: case 24: case 26: case 85: case 91: case 92: case 93: case 100: case 121:
                case 122: case 123: case 126: case 127:
                  return 0;
                default:
                  return 2;
              }
            case 19:
              switch (tokens.LA(3)) {
                case 6:
                  switch (tokens.LA(4)) {
                    case 7: case 10: case 24: case 26: case 85: case 91: case 92: case 93: case 100:
                    case 121: case 122: case 123: case 126: case 127:
                      return 0;
                    default:
                      return 2;
                  }
                case 15: case 31: case 32: case 33: case 34:
                  return 1;
                case 127:
                  switch (tokens.LA(4)) {
                    case 6:
                      switch (tokens.LA(5)) {
                        case 7: case 10: case 24: case 26: case 85: case 91: case 92: case 93:
                        case 100: case 121: case 122: case 123: case 126: case 127:
                          return 0;
                        default:
                          return 2;
                      }
                    case 15: case 31: case 32: case 33: case 34:
                      return 1;
                    default:
                      return 2;
                  }
                default:
                  return 2;
              }
            case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42: case 43:
            case 44: case 45:
              return 1;
            case 127:
              switch (tokens.LA(3)) {
                case 8:
                  switch (tokens.LA(4)) {
                    case 5: case 10:
                      return 1;
                    case 9: case 24: case 26: case 85: case 91: case 92: case 93: case 100:
                    case 121: case 122: case 123: case 126: case 127:
                      return 0;
                    default:
                      return 2;
                  }
                case 19:
                  switch (tokens.LA(4)) {
                    case 6:
                      switch (tokens.LA(5)) {
                        case 7: case 10: case 24: case 26: case 85: case 91: case 92: case 93:
                        case 100: case 121: case 122: case 123: case 126: case 127:
                          return 0;
                        default:
                          return 2;
                      }
                    case 15: case 31: case 32: case 33: case 34:
                      return 1;
                    case 127:
                      switch (tokens.LA(5)) {
                        case 6:
                          switch (tokens.LA(6)) {
                            case 7: case 10: case 24: case 26: case 85: case 91: case 92: case 93:
                            case 100: case 121: case 122: case 123: case 126: case 127:
                              return 0;
                            default:
                              return 2;
                          }
                        case 15: case 31: case 32: case 33: case 34:
                          return 1;
                        default:
                          return 2;
                      }
                    default:
                      return 2;
                  }
                case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42: case 43:
                case 44: case 45: case 127:
                  return 1;
                default:
                  return 2;
              }
            default:
              return 2;
          }
        case 27: case 28: case 29: case 30: case 35: case 36: case 37: case 38: case 39: case 40:
        case 41: case 42: case 43: case 44: case 45:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 14:
              switch (tokens.LA(3)) {
                case 19:
                  switch (tokens.LA(4)) {
                    case 8:
                      switch (tokens.LA(5)) {
                        case 5: case 10:
                          return 1;
                        case 9: case 24: case 26: case 85: case 91: case 92: case 93: case 100:
                        case 121: case 122: case 123: case 126: case 127:
                          return 0;
                        default:
                          return 2;
                      }
                    case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42:
                    case 43: case 44: case 45:
                      return 1;
                    case 127:
                      switch (tokens.LA(5)) {
                        case 8:
                          switch (tokens.LA(6)) {
                            case 5: case 10:
                              return 1;
                            case 9: case 24: case 26: case 85: case 91: case 92: case 93: case 100:
                            case 121: case 122: case 123: case 126: case 127:
                              return 0;
                            default:
                              return 2;
                          }
                        case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41:
                        case 42: case 43: case 44: case 45: case 127:
                          return 1;
                        default:
                          return 2;
                      }
                    default:
                      return 2;
                  }
                case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42: case 43:
                case 44: case 45:
                  return 1;
                case 127:
                  switch (tokens.LA(4)) {
                    case 19:
                      switch (tokens.LA(5)) {
                        case 8:
                          switch (tokens.LA(6)) {
                            case 5: case 10:
                              return 1;
                            case 9: case 24: case 26: case 85: case 91: case 92: case 93: case 100:
                            case 121: case 122: case 123: case 126: case 127:
                              return 0;
                            default:
                              return 2;
                          }
                        case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41:
                        case 42: case 43: case 44: case 45:
                          return 1;
                        case 127:
                          switch (tokens.LA(6)) {
                            case 8:
                              switch (tokens.LA(7)) {
                                case 5: case 10:
                                  return 1;
                                case 9: case 24: case 26: case 85: case 91: case 92: case 93:
                                case 100: case 121: case 122: case 123: case 126: case 127:
                                  return 0;
                                default:
                                  return 2;
                              }
                            case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41:
                            case 42: case 43: case 44: case 45: case 127:
                              return 1;
                            default:
                              return 2;
                          }
                        default:
                          return 2;
                      }
                    case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42: case 43:
                    case 44: case 45:
                      return 1;
                    default:
                      return 2;
                  }
                default:
                  return 2;
              }
            case 19:
              switch (tokens.LA(3)) {
                case 8: case 19: case 127:
                  return 0;
                case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42: case 43:
                case 44: case 45:
                  return 1;
                default:
                  return 2;
              }
            case 27: case 28: case 29: case 30: case 35: case 36: case 37: case 38: case 39:
            case 40: case 41: case 42: case 43: case 44: case 45:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 117:  // oC_RelationshipPattern
      switch (tokens.LA(1)) {
        case 8: case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42:
        case 43: case 44: case 45:
          return 2;
        default:
          return 0;
      }
    case 122:  // oC_RelationshipPattern
      switch (tokens.LA(1)) {
        case 8: case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42:
        case 43: case 44: case 45:
          return 2;
        default:
          return 0;
      }
    case 125:  // oC_RelationshipPattern
      switch (tokens.LA(1)) {
        case 8: case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42:
        case 43: case 44: case 45:
          return 2;
        default:
          return 0;
      }
    case 129:  // oC_RelationshipPattern
      switch (tokens.LA(1)) {
        case 8: case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42:
        case 43: case 44: case 45:
          return 2;
        default:
          return 0;
      }
    case 132:  // oC_RelationshipPattern
      switch (tokens.LA(1)) {
        case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42: case 43:
        case 44: case 45:
          switch (tokens.LA(2)) {
            case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42:
            case 43: case 44: case 45:
              switch (tokens.LA(3)) {
                case 15: case 31: case 32: case 33: case 34:
                  return 3;
                case 127:
                  switch (tokens.LA(4)) {
                    case 15: case 31: case 32: case 33: case 34:
                      return 3;
                    default:
                      return 4;
                  }
                default:
                  return 4;
              }
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 146:  // oC_RelationshipTypes
      switch (tokens.LA(1)) {
        case 11:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 11:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 148:  // oC_NodeLabels
      switch (tokens.LA(1)) {
        case 10:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 10:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 158:  // oC_PropertyExpression
      switch (tokens.LA(1)) {
        case 23:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 23:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 159:  // oC_OrExpression
      switch (tokens.LA(1)) {
        case 127:
          switch (tokens.LA(2)) {
            case 75:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 160:  // oC_XorExpression
      switch (tokens.LA(1)) {
        case 127:
          switch (tokens.LA(2)) {
            case 76:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 161:  // oC_AndExpression
      switch (tokens.LA(1)) {
        case 127:
          switch (tokens.LA(2)) {
            case 77:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 165:  // oC_ComparisonExpression
      switch (tokens.LA(1)) {
        case 3: case 13: case 14: case 15: case 16: case 17:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 3: case 13: case 14: case 15: case 16: case 17:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 173:  // oC_StringListNullPredicateExpression
      switch (tokens.LA(1)) {
        case 127:
          switch (tokens.LA(2)) {
            case 79: case 80: case 81:
              return 1;
            case 82:
              return 2;
            case 83:
              return 3;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 174:  // oC_StringListNullPredicateExpression
      switch (tokens.LA(1)) {
        case 127:
          switch (tokens.LA(2)) {
            case 79: case 80: case 81: case 82: case 83:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 175:  // oC_StringPredicateExpression
      switch (tokens.LA(1)) {
        case 127:
          switch (tokens.LA(2)) {
            case 79:
              return 1;
            case 80:
              return 2;
            case 81:
              return 3;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 178:  // oC_NullPredicateExpression
      switch (tokens.LA(1)) {
        case 127:
          switch (tokens.LA(2)) {
            case 83:
              switch (tokens.LA(3)) {
                case 127:
                  switch (tokens.LA(4)) {
                    case 78:
                      return 2;
                    case 84:
                      return 1;
                    default:
                      return 0;
                  }
                default:
                  return 0;
              }
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 183:  // oC_AddOrSubtractExpression
      switch (tokens.LA(1)) {
        case 18:
          return 1;
        case 19:
          return 2;
        case 127:
          switch (tokens.LA(2)) {
            case 18:
              return 1;
            case 19:
              return 2;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 184:  // oC_AddOrSubtractExpression
      switch (tokens.LA(1)) {
        case 18: case 19:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 18: case 19:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 191:  // oC_MultiplyDivideModuloExpression
      switch (tokens.LA(1)) {
        case 5:
          return 1;
        case 20:
          return 2;
        case 21:
          return 3;
        case 127:
          switch (tokens.LA(2)) {
            case 5:
              return 1;
            case 20:
              return 2;
            case 21:
              return 3;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 192:  // oC_MultiplyDivideModuloExpression
      switch (tokens.LA(1)) {
        case 5: case 20: case 21:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 5: case 20: case 21:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 195:  // oC_PowerOfExpression
      switch (tokens.LA(1)) {
        case 22:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 22:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 202:  // oC_ListOperatorExpression
      switch (tokens.LA(1)) {
        case 8:
          switch (tokens.LA(2)) {
            case 12:
              return 2;
            case 26:
              switch (tokens.LA(3)) {
                case 85: case 91: case 92: case 93: case 98: case 100: case 121: case 122: case 123:
                case 126:
                  switch (tokens.LA(4)) {
                    case 9:
                      return 1;
                    case 12:
                      return 2;
                    default:
                      return 0;
                  }
                default:
                  return 0;
              }
            case 84: case 85: case 91: case 92: case 93: case 95: case 96: case 97: case 98:
            case 99: case 100: case 107: case 108: case 109: case 121: case 122: case 123: case 126:
              switch (tokens.LA(3)) {
                case 9:
                  return 1;
                case 12:
                  return 2;
                default:
                  return 0;
              }
            default:
              return 0;
          }
        case 127:
          switch (tokens.LA(2)) {
            case 8:
              switch (tokens.LA(3)) {
                case 12:
                  return 2;
                default:
                  return 0;
              }
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 203:  // oC_ListOperatorExpression
      switch (tokens.LA(1)) {
        case 8:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 8:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 205:  // oC_PropertyOrLabelsExpression
      switch (tokens.LA(1)) {
        case 23:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 23:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 207:  // oC_PropertyOrLabelsExpression
      switch (tokens.LA(1)) {
        case 10:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 10:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 212:  // oC_Atom
      switch (tokens.LA(1)) {
        case 6:
          switch (tokens.LA(2)) {
            case 6: case 8: case 18: case 19: case 47: case 78: case 84: case 86: case 94: case 95:
            case 96: case 97: case 98: case 99: case 107: case 108: case 109:
              return 9;
            case 7: case 10:
              return 8;
            case 26:
              switch (tokens.LA(3)) {
                case 85: case 91: case 92: case 93: case 98: case 100: case 121: case 122: case 123:
                case 126:
                  switch (tokens.LA(4)) {
                    case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16: case 17:
                    case 18: case 19: case 20: case 21: case 22: case 23:
                      return 9;
                    case 7:
                      switch (tokens.LA(5)) {
                        case 14: case 19: case 127:
                          return 0;
                        case 27: case 28: case 29: case 30: case 35: case 36: case 37: case 38:
                        case 39: case 40: case 41: case 42: case 43: case 44: case 45:
                          return 8;
                        default:
                          return 9;
                      }
                    case 127:
                      switch (tokens.LA(5)) {
                        case 3: case 5: case 8: case 10: case 13: case 14: case 15: case 16:
                        case 17: case 18: case 19: case 20: case 21: case 22: case 23: case 75:
                        case 76: case 77: case 79: case 80: case 81: case 82: case 83:
                          return 9;
                        case 7:
                          switch (tokens.LA(6)) {
                            case 14: case 19: case 127:
                              return 0;
                            case 27: case 28: case 29: case 30: case 35: case 36: case 37: case 38:
                            case 39: case 40: case 41: case 42: case 43: case 44: case 45:
                              return 8;
                            default:
                              return 9;
                          }
                        default:
                          return 0;
                      }
                    default:
                      return 0;
                  }
                default:
                  return 0;
              }
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
              switch (tokens.LA(3)) {
                case 3: case 5: case 6: case 8: case 13: case 14: case 15: case 16: case 17:
                case 18: case 19: case 20: case 21: case 22: case 23:
                  return 9;
                case 24: case 26:
                  return 8;
                default:
                  return 0;
              }
            case 127:
              switch (tokens.LA(3)) {
                case 6: case 8: case 18: case 19: case 47: case 78: case 84: case 86: case 94:
                case 95: case 96: case 97: case 98: case 99: case 107: case 108: case 109:
                  return 9;
                case 7: case 10:
                  return 8;
                default:
                  return 0;
              }
            default:
              return 0;
          }
        case 8:
          switch (tokens.LA(2)) {
            case 6:
              switch (tokens.LA(3)) {
                case 6: case 8: case 18: case 19: case 47: case 78: case 84: case 86: case 94:
                case 95: case 96: case 97: case 98: case 99: case 107: case 108: case 109:
                  return 1;
                default:
                  return 0;
              }
            case 8: case 9: case 18: case 19: case 24: case 26: case 47: case 78: case 84: case 86:
            case 94: case 95: case 96: case 97: case 98: case 99: case 107: case 108: case 109:
              return 1;
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
              switch (tokens.LA(3)) {
                case 2: case 5: case 6: case 8: case 9: case 10: case 13: case 14: case 15: case 16:
                case 17: case 18: case 19: case 20: case 21: case 22: case 23:
                  return 1;
                case 3:
                  switch (tokens.LA(4)) {
                    case 6:
                      switch (tokens.LA(5)) {
                        case 6: case 8: case 18: case 19: case 47: case 78: case 84: case 86:
                        case 94: case 95: case 96: case 97: case 98: case 99: case 107: case 108:
                        case 109:
                          return 1;
                        default:
                          return 0;
                      }
                    case 8: case 18: case 19: case 24: case 26: case 47: case 84: case 85: case 86:
                    case 91: case 92: case 93: case 94: case 95: case 96: case 97: case 98: case 99:
                    case 100: case 107: case 108: case 109: case 121: case 122: case 123: case 126:
                      return 1;
                    case 127:
                      switch (tokens.LA(5)) {
                        case 6:
                          switch (tokens.LA(6)) {
                            case 6: case 8: case 18: case 19: case 47: case 78: case 84: case 86:
                            case 94: case 95: case 96: case 97: case 98: case 99: case 107:
                            case 108: case 109:
                              return 1;
                            default:
                              return 0;
                          }
                        case 8: case 18: case 19: case 24: case 26: case 47: case 84: case 85:
                        case 86: case 91: case 92: case 93: case 94: case 95: case 96: case 97:
                        case 98: case 99: case 100: case 107: case 108: case 109: case 121:
                        case 122: case 123: case 126:
                          return 1;
                        default:
                          return 0;
                      }
                    default:
                      return 0;
                  }
                case 127:
                  switch (tokens.LA(4)) {
                    case 2: case 5: case 6: case 8: case 9: case 10: case 13: case 14: case 15:
                    case 16: case 17: case 18: case 19: case 20: case 21: case 22: case 23: case 75:
                    case 76: case 77: case 79: case 80: case 81: case 83:
                      return 1;
                    case 3:
                      switch (tokens.LA(5)) {
                        case 6:
                          switch (tokens.LA(6)) {
                            case 6: case 8: case 18: case 19: case 47: case 78: case 84: case 86:
                            case 94: case 95: case 96: case 97: case 98: case 99: case 107:
                            case 108: case 109:
                              return 1;
                            default:
                              return 0;
                          }
                        case 8: case 18: case 19: case 24: case 26: case 47: case 84: case 85:
                        case 86: case 91: case 92: case 93: case 94: case 95: case 96: case 97:
                        case 98: case 99: case 100: case 107: case 108: case 109: case 121:
                        case 122: case 123: case 126:
                          return 1;
                        case 127:
                          switch (tokens.LA(6)) {
                            case 6:
                              switch (tokens.LA(7)) {
                                case 6: case 8: case 18: case 19: case 47: case 78: case 84:
                                case 86: case 94: case 95: case 96: case 97: case 98: case 99:
                                case 107: case 108: case 109:
                                  return 1;
                                default:
                                  return 0;
                              }
                            case 8: case 18: case 19: case 24: case 26: case 47: case 84: case 85:
                            case 86: case 91: case 92: case 93: case 94: case 95: case 96: case 97:
                            case 98: case 99: case 100: case 107: case 108: case 109: case 121:
                            case 122: case 123: case 126:
                              return 1;
                            default:
                              return 0;
                          }
                        default:
                          return 0;
                      }
                    case 82:
                      switch (tokens.LA(5)) {
                        case 6: case 8: case 18: case 19: case 24: case 26: case 47: case 84:
                        case 85: case 86: case 91: case 92: case 93: case 94: case 95: case 96:
                        case 97: case 98: case 99: case 100: case 107: case 108: case 109: case 121:
                        case 122: case 123: case 126:
                          return 1;
                        case 127:
                          switch (tokens.LA(6)) {
                            case 78:
                              return 5;
                            default:
                              return 0;
                          }
                        default:
                          return 0;
                      }
                    default:
                      return 0;
                  }
                default:
                  return 0;
              }
            case 127:
              switch (tokens.LA(3)) {
                case 8: case 9: case 18: case 19: case 24: case 26: case 47: case 78: case 84:
                case 86: case 94: case 95: case 96: case 97: case 98: case 99: case 107: case 108:
                case 109:
                  return 1;
                default:
                  return 0;
              }
            default:
              return 0;
          }
        case 24: case 84: case 95: case 96: case 97: case 98: case 99: case 107: case 108: case 109:
          return 1;
        case 26:
          return 2;
        case 47:
          return 7;
        case 85:
          switch (tokens.LA(2)) {
            case 6:
              switch (tokens.LA(3)) {
                case 5:
                  return 4;
                case 6: case 7: case 8: case 18: case 19: case 24: case 26: case 47: case 63:
                case 78: case 84: case 85: case 86: case 91: case 92: case 93: case 94: case 95:
                case 96: case 97: case 98: case 99: case 100: case 107: case 108: case 109:
                case 121: case 122: case 123: case 126:
                  return 10;
                case 127:
                  switch (tokens.LA(4)) {
                    case 5:
                      return 4;
                    case 6: case 7: case 8: case 18: case 19: case 24: case 26: case 47: case 63:
                    case 78: case 84: case 85: case 86: case 91: case 92: case 93: case 94: case 95:
                    case 96: case 97: case 98: case 99: case 100: case 107: case 108: case 109:
                    case 121: case 122: case 123: case 126:
                      return 10;
                    default:
                      return 0;
                  }
                default:
                  return 0;
              }
            case 23:
              switch (tokens.LA(3)) {
                case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123:
                case 126:
                  switch (tokens.LA(4)) {
                    case 6:
                      return 10;
                    case 23:
                      switch (tokens.LA(5)) {
                        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123:
                        case 126:
                          switch (tokens.LA(6)) {
                            case 6:
                              return 10;
                            case 23:
                              switch (tokens.LA(7)) {
                                case 85: case 91: case 92: case 93: case 100: case 121: case 122:
                                case 123: case 126:
                                  return 0;
                                default:
                                  return 12;
                              }
                            case 127:
                              switch (tokens.LA(7)) {
                                case 6:
                                  return 10;
                                default:
                                  return 12;
                              }
                            default:
                              return 12;
                          }
                        default:
                          return 12;
                      }
                    case 127:
                      switch (tokens.LA(5)) {
                        case 6:
                          return 10;
                        default:
                          return 12;
                      }
                    default:
                      return 12;
                  }
                default:
                  return 12;
              }
            case 127:
              switch (tokens.LA(3)) {
                case 6:
                  switch (tokens.LA(4)) {
                    case 5:
                      return 4;
                    case 6: case 7: case 8: case 18: case 19: case 24: case 26: case 47: case 63:
                    case 78: case 84: case 85: case 86: case 91: case 92: case 93: case 94: case 95:
                    case 96: case 97: case 98: case 99: case 100: case 107: case 108: case 109:
                    case 121: case 122: case 123: case 126:
                      return 10;
                    case 127:
                      switch (tokens.LA(5)) {
                        case 5:
                          return 4;
                        case 6: case 7: case 8: case 18: case 19: case 24: case 26: case 47:
                        case 63: case 78: case 84: case 85: case 86: case 91: case 92: case 93:
                        case 94: case 95: case 96: case 97: case 98: case 99: case 100: case 107:
                        case 108: case 109: case 121: case 122: case 123: case 126:
                          return 10;
                        default:
                          return 0;
                      }
                    default:
                      return 0;
                  }
                default:
                  return 12;
              }
            default:
              return 12;
          }
        case 86:
          return 3;
        case 91: case 92: case 93:
          switch (tokens.LA(2)) {
            case 6:
              switch (tokens.LA(3)) {
                case 6: case 7: case 8: case 18: case 19: case 24: case 26: case 47: case 63:
                case 78: case 84: case 86: case 94: case 95: case 96: case 97: case 98: case 99:
                case 107: case 108: case 109:
                  return 10;
                default:
                  return 0;
              }
            case 23:
              switch (tokens.LA(3)) {
                case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123:
                case 126:
                  switch (tokens.LA(4)) {
                    case 6:
                      return 10;
                    case 23:
                      switch (tokens.LA(5)) {
                        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123:
                        case 126:
                          switch (tokens.LA(6)) {
                            case 6:
                              return 10;
                            case 23:
                              switch (tokens.LA(7)) {
                                case 85: case 91: case 92: case 93: case 100: case 121: case 122:
                                case 123: case 126:
                                  return 0;
                                default:
                                  return 12;
                              }
                            case 127:
                              switch (tokens.LA(7)) {
                                case 6:
                                  return 10;
                                default:
                                  return 12;
                              }
                            default:
                              return 12;
                          }
                        default:
                          return 12;
                      }
                    case 127:
                      switch (tokens.LA(5)) {
                        case 6:
                          return 10;
                        default:
                          return 12;
                      }
                    default:
                      return 12;
                  }
                default:
                  return 12;
              }
            case 127:
              switch (tokens.LA(3)) {
                case 6:
                  switch (tokens.LA(4)) {
                    case 6: case 7: case 8: case 18: case 19: case 24: case 26: case 47: case 63:
                    case 78: case 84: case 86: case 94: case 95: case 96: case 97: case 98: case 99:
                    case 107: case 108: case 109:
                      return 10;
                    default:
                      return 0;
                  }
                default:
                  return 12;
              }
            default:
              return 12;
          }
        case 94:
          return 11;
        case 100: case 121: case 122: case 123: case 126:
          switch (tokens.LA(2)) {
            case 6:
              return 10;
            case 23:
              switch (tokens.LA(3)) {
                case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123:
                case 126:
                  switch (tokens.LA(4)) {
                    case 6:
                      return 10;
                    case 23:
                      switch (tokens.LA(5)) {
                        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123:
                        case 126:
                          switch (tokens.LA(6)) {
                            case 6:
                              return 10;
                            case 23:
                              switch (tokens.LA(7)) {
                                case 85: case 91: case 92: case 93: case 100: case 121: case 122:
                                case 123: case 126:
                                  return 0;
                                default:
                                  return 12;
                              }
                            case 127:
                              switch (tokens.LA(7)) {
                                case 6:
                                  return 10;
                                default:
                                  return 12;
                              }
                            default:
                              return 12;
                          }
                        default:
                          return 12;
                      }
                    case 127:
                      switch (tokens.LA(5)) {
                        case 6:
                          return 10;
                        default:
                          return 12;
                      }
                    default:
                      return 12;
                  }
                default:
                  return 12;
              }
            case 127:
              switch (tokens.LA(3)) {
                case 6:
                  return 10;
                default:
                  return 12;
              }
            default:
              return 12;
          }
        default:
          return 0;
      }
    case 214:  // oC_CaseExpression
      switch (tokens.LA(1)) {
        case 87: case 88:
          return 2;
        case 89:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 87: case 88:
              return 2;
            case 89:
              return 1;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 217:  // oC_CaseExpression
      switch (tokens.LA(1)) {
        case 87: case 88:
          return 2;
        case 89:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 87: case 88:
              return 2;
            case 89:
              return 1;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 218:  // oC_CaseExpression
      switch (tokens.LA(1)) {
        case 86:
          switch (tokens.LA(2)) {
            case 6: case 8: case 18: case 19: case 24: case 26: case 47: case 78: case 84: case 85:
            case 86: case 91: case 92: case 93: case 94: case 95: case 96: case 97: case 98:
            case 99: case 100: case 107: case 108: case 109: case 121: case 122: case 123: case 126:
              return 2;
            case 89:
              return 1;
            case 127:
              switch (tokens.LA(3)) {
                case 6: case 8: case 18: case 19: case 24: case 26: case 47: case 78: case 84:
                case 85: case 86: case 91: case 92: case 93: case 94: case 95: case 96: case 97:
                case 98: case 99: case 100: case 107: case 108: case 109: case 121: case 122:
                case 123: case 126:
                  return 2;
                case 89:
                  return 1;
                default:
                  return 0;
              }
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 221:  // oC_CaseExpression
      switch (tokens.LA(1)) {
        case 87:
          return 1;
        case 88:
          return 2;
        case 127:
          switch (tokens.LA(2)) {
            case 87:
              return 1;
            case 88:
              return 2;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 229:  // oC_ListComprehension
      switch (tokens.LA(1)) {
        case 9:
          return 2;
        case 11:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 9:
              return 2;
            case 11:
              return 1;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 254:  // oC_FilterExpression
      switch (tokens.LA(1)) {
        case 72:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 72:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    case 269:  // oC_ExistentialSubquery
      switch (tokens.LA(1)) {
        case 25:
          return 2;
        case 72:
          return 1;
        case 127:
          switch (tokens.LA(2)) {
            case 25:
              return 2;
            case 72:
              return 1;
            default:
              return 0;
          }
        default:
          return 0;
      }
    case 279:  // oC_Namespace
      switch (tokens.LA(1)) {
        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
          switch (tokens.LA(2)) {
            case 23:
              return 1;
            default:
              return 2;
          }
        default:
          return 2;
      }
    default:
      return 0;
  }
}

}  // namespace vorn
